import QtQuick 2.15
import QtTest 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// What every screen is made of can be seen in every theme and hit on every screen.
TestCase {
    name: "Style"

    readonly property var verdicts: ["pass", "warning", "fail"]
    readonly property var meanings: verdicts.concat(["primary", "focus", "invalid", "news", "information"])
    readonly property var surfaces: ["background", "card", "field", "pressed", "selected", "notice"]

    function cleanup() {
        ControlsStyle.theme = "light"
        ControlsStyle.pixelDensity = 96 / 25.4
    }

    // The contrast of WCAG 2.
    function luminance(color) {
        const linear = part => part <= 0.04045 ? part / 12.92 : Math.pow((part + 0.055) / 1.055, 2.4)
        return 0.2126 * linear(color.r) + 0.7152 * linear(color.g) + 0.0722 * linear(color.b)
    }
    function contrast(one, other) {
        const lights = [luminance(Qt.darker(one, 1)), luminance(Qt.darker(other, 1))].sort((a, b) => b - a)
        return (lights[0] + 0.05) / (lights[1] + 0.05)
    }

    function test_contrast_data() {
        return ControlsStyle.themes.map(name => ({ tag: name }))
    }
    function test_contrast(row) {
        const style = ControlsStyle
        style.theme = row.tag
        const pairs = []
        const add = (least, names, grounds) => names.forEach(name => grounds.forEach(ground => pairs.push([least, name, style[name], ground, style[ground]])))
        add(4.5, ["text", "mutedText"].concat(meanings), surfaces)
        add(4.5, ["text", "mutedText"], ["disabledField"])
        add(4.5, ["primaryText"], meanings.concat("primaryPressed"))
        add(3, ["disabledText", "border", "axis"], ["background", "card", "field", "disabledField"])
        style.curves.forEach((curve, i) => ["background", "card", "field"].forEach(ground => pairs.push([3, "curve " + i, curve, ground, style[ground]])))
        for (const [least, name, color, ground, surface] of pairs)
            verify(contrast(color, surface) >= least, `${name} on ${ground}: ${contrast(color, surface)}`)
        const different = new Set(meanings.map(name => String(style[name])).concat(style.curves))
        compare(different.size, meanings.length + style.curves.length, "one colour, one meaning")
    }

    function test_themesAreShownAtOnce() {
        compare(ControlsStyle.themes, ["light", "dark", "sunlight"])
        compare(ControlsStyle.theme, "light")
        const light = String(ControlsStyle.background)
        ControlsStyle.theme = "dark"
        verify(luminance(ControlsStyle.background) < 0.05)
        ControlsStyle.theme = "no such theme"
        compare(String(ControlsStyle.background), light)
    }

    function test_verdictsInWordsAndIcons() {
        const codes = [Status.None, Status.Pass, Status.Marginal, Status.Fail, 48]
        compare(codes.map(ControlsStyle.qualityWord), ["", "Pass", "Warning", "Fail", ""])
        compare(codes.map(ControlsStyle.qualityIcon), ["", "pass", "warning", "fail", ""])
        compare(codes.map(code => String(ControlsStyle.qualityColor(code))),
                ["transparent"].concat(verdicts.map(name => String(ControlsStyle[name])), "transparent"))
    }

    // The three screens that the instruments have.
    function test_measuresArePhysical_data() {
        return [133, 149, 170].map(dpi => ({ tag: String(dpi), dpi: dpi }))
    }
    function test_measuresArePhysical(row) {
        ControlsStyle.pixelDensity = row.dpi / 25.4
        const lengths = { touch: 9, touchGap: 2, padKeyWidth: 9, padKeyHeight: 9, labelText: 8 * 25.4 / 72, smallText: 8 * 25.4 / 72, bodyText: 9 * 25.4 / 72 }
        for (const name in lengths) {
            const pixels = lengths[name] * row.dpi / 25.4
            verify(ControlsStyle[name] >= pixels && ControlsStyle[name] < 1.3 * pixels + 1, `${name}: ${ControlsStyle[name]} pixels, not ${pixels}`)
        }
        compare(ControlsStyle.mm(0), 0)
        verify(ControlsStyle.line >= 1)
    }
    function test_screensThatReportNonsense() {
        for (const density of [0, 1.4, 26, NaN, Infinity, -4])
            compare(ControlsStyle.plausibleDensity(density), 96 / 25.4)
        for (const density of [1.5, 6.7, 25])
            compare(ControlsStyle.plausibleDensity(density), density)
    }
}
