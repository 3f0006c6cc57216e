import QtQuick 2.15
import UiUtils 1.0
import "formats.js" as Formats

/// A number, shown in the user's locale and written as a plain number.
FieldEntry {
    id: entry

    /// Decimals that are shown and accepted; -1 for any.
    property int decimals: face.decimals
    /// Whether only whole numbers are accepted.
    property bool whole: Formats.isWholeType(type) || face.inputType === KivData.INPUT_INT
                         || face.inputType === KivData.INPUT_POSITIVE_INT
    /// Whether negative numbers are rejected.
    property bool positive: face.inputType === KivData.INPUT_POSITIVE_INT || face.inputType === KivData.INPUT_POSITIVE_FLOAT

    readonly property var least: Math.max(Formats.typeLimits(type)[0], positive ? 0 : -Infinity,
                                          minimum === undefined ? -Infinity : Number(minimum))
    readonly property var most: Math.min(Formats.typeLimits(type)[1], maximum === undefined ? Infinity : Number(maximum))

    function textOf(value) {
        if (value === undefined || value === null || value === "")
            return ""
        const number = Number(value)
        if (isNaN(number))
            return String(value)
        const plain = decimals >= 0 && !whole ? number.toFixed(decimals) : String(number)
        return plain.replace(".", Qt.locale().decimalPoint)
    }

    function parsed(text) {
        return text === "" ? undefined : Number(Formats.plainNumber(text, Qt.locale()))
    }

    function check(text) {
        const plain = Formats.plainNumber(text, Qt.locale())
        const number = Number(plain)
        if (plain === "") {
            const point = Qt.locale().decimalPoint
            return point !== "." && text.includes(".") ? qsTr("Use \"%1\" as the decimal separator").arg(point) : qsTr("This is not a number")
        }
        if (whole && !Number.isInteger(number))
            return qsTr("A whole number is required")
        if (number < least || number > most)
            return outside()
        const fraction = /\.([0-9]*)/.exec(plain)
        const isTooFine = fraction && fraction[1].length > decimals || Number(number.toFixed(Math.max(decimals, 0))) !== number
        if (!whole && decimals >= 0 && isTooFine)
            return decimals === 0 ? qsTr("A whole number is required") : qsTr("Decimals: at most %1").arg(decimals)
        return ""
    }

    function outside() {
        return rangeText !== "" ? rangeText : Formats.rangeText(isFinite(least) ? least : undefined,
                                                                isFinite(most) ? most : undefined, textOf, unit)
    }

    // The item's own words, if they give the limits unchanged.
    rangeText: {
        // Whether there is an item is asked first: that makes the item describe itself.
        const isDescribed = face.hasItem && face.inputType >= KivData.INPUT_INT && face.inputType <= KivData.INPUT_POSITIVE_FLOAT
                          && (whole || decimals >= 0 || face.hasFormatter) && face.minimum !== undefined && face.maximum !== undefined
        return isDescribed ? Formats.withUnit(face.tidyRange, unit) : Formats.rangeText(minimum, maximum, textOf, unit)
    }
    // A local item without a precision rounds its text to whole numbers.
    plainText: face.hasItem && (!face.isLocal || face.hasFormatter && shownText !== "") ? face.valueString
             : shownText === "" ? "" : Formats.withUnit(shownText, unit)
    inputMethodHints: whole && least >= 0 ? Qt.ImhDigitsOnly : Qt.ImhFormattedNumbersOnly
    hasPad: true
    padSeparator: whole || decimals === 0 ? "" : Qt.locale().decimalPoint
    padHasSign: least < 0
    // Rounded values have no digits for one.
    padHasExponent: !whole && decimals < 0
}
