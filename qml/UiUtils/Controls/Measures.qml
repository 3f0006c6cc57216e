import QtQuick 2.15
import "themes.js" as Themes

/// Measures and colours of screens. Lengths are physical: they follow the density of the screen, so that a target has
/// the size of a finger on every one.
QtObject {
    // --- The physical scale ---

    /// Pixels of a millimetre; the screen's. 96 dots per inch where the screen reports nonsense.
    property real pixelDensity: plausibleDensity(Qt.application.screens.length > 0 ? Qt.application.screens[0].pixelDensity : 0)

    /// Minimum size of a target, for a gloved finger: 9 mm.
    property int touch: mm(9)
    /// The distance between targets: 2 mm.
    property int touchGap: mm(2)
    /// The distance between texts, and between what belongs together: 1.5 mm.
    property int gap: mm(1.5)
    /// The distance of contents from the edges of pages, pads and dialogs: 3 mm.
    property int margin: mm(3)
    /// The radius of corners: 1.5 mm.
    property int radius: mm(1.5)
    /// The width of frames and dividing lines: 0.25 mm.
    property int line: mm(0.25)
    /// The width of the frame around what has the focus: 0.6 mm.
    property int focusLine: mm(0.6)
    /// The width of a key of the pad.
    property int padKeyWidth: mm(11)
    /// The height of a key of the pad.
    property int padKeyHeight: touch

    /// The height of labels and notes: 8 points.
    property int smallText: pt(8)
    /// The same as `smallText`.
    property int labelText: smallText
    /// The height of the texts in fields, buttons and rows: 9 points.
    property int bodyText: pt(9)
    /// The height of headings: 12 points.
    property int headingText: pt(12)
    /// The height of the titles of pages: 15 points.
    property int titleText: pt(15)
    /// The height of measured figures that are read from a distance: 26 points.
    property int figureText: pt(26)
    /// The height of the text on the display of the pad: 16 points.
    property int padText: pt(16)

    // --- The theme ---

    /// The name of the theme, one of `themes`. An unknown name gives the first.
    property string theme: "light"
    /// The names of the themes: "light", "dark" and "sunlight".
    readonly property var themes: Object.keys(Themes.all)
    readonly property var palette: Themes.all[theme] || Themes.light

    /// Surface: behind everything.
    property color background: palette.background
    /// Surface: cards, rows and dialogs.
    property color card: palette.card
    /// Surface: fields.
    property color field: palette.field
    /// Surface: fields that accept no input.
    property color disabledField: palette.disabledField
    /// Surface: what is pressed and not filled.
    property color pressed: palette.pressed
    /// Surface: what is selected.
    property color selected: palette.selected
    /// Surface: what needs attention, such as a setting that is not applied yet.
    property color notice: palette.notice
    /// The frame of fields and buttons.
    property color border: palette.border
    /// Lines between rows, and around cards; decoration.
    property color divider: palette.divider

    /// Texts.
    property color text: palette.text
    /// Texts of less importance.
    property color mutedText: palette.mutedText
    /// Texts and icons of what accepts no input now.
    property color disabledText: palette.disabledText
    /// Texts on `primary`, and on any other meaning that fills a surface.
    property color primaryText: palette.primaryText

    /// What can be pressed, as the background of filled buttons and as the text of others.
    property color primary: palette.primary
    /// The background of filled buttons that are pressed.
    property color primaryPressed: palette.primaryPressed
    /// What has the focus of the keyboard.
    property color focus: palette.focus
    /// What is wrong: an entry, or something that failed. Not a verdict of a measurement.
    property color invalid: palette.invalid
    /// What has happened meanwhile.
    property color news: palette.news
    /// The verdict Status.Pass.
    property color pass: palette.pass
    /// The verdict Status.Marginal.
    property color warning: palette.warning
    /// The verdict Status.Fail.
    property color fail: palette.fail
    /// Notes and states that ask for nothing.
    property color information: palette.information

    /// The colours of curves, in this order.
    property var curves: palette.curves
    /// The grid of plots.
    property color grid: palette.grid
    /// The axes of plots.
    property color axis: palette.axis

    /// Whether the layout runs from right to left.
    readonly property bool mirrored: Qt.application.layoutDirection === Qt.RightToLeft

    /// The length, in millimetres, in whole pixels; rounded up.
    function mm(length) {
        return Math.ceil(length * pixelDensity - 1e-6)
    }

    /// The size of a font, in points of 1/72 inch, in whole pixels; rounded up.
    function pt(size) {
        return mm(size * 25.4 / 72)
    }

    function plausibleDensity(reported) {
        return reported >= 1.5 && reported <= 25 ? reported : 96 / 25.4
    }
}
