pragma Singleton
import QtQuick 2.15
import UiUtils 1.0

/// Colours and sizes of all entries. Lengths are pixels of the instrument's 1024 x 600 screen. An application with its
/// own look writes them before its first page.
QtObject {
    /// Behind everything.
    property color background: "#edf2f5"
    /// The background of fields.
    property color field: "#ffffff"
    /// The background of fields that accept no input.
    property color disabledField: "#f4f7f9"
    /// The frame of fields and buttons.
    property color border: "#b4c3cd"
    /// Texts.
    property color text: "#14283a"
    /// Texts of less importance.
    property color mutedText: "#56656f"
    /// The background of filled buttons.
    property color primary: "#00689b"
    /// The background of filled buttons that are pressed.
    property color primaryPressed: "#004f77"
    /// Texts on filled buttons.
    property color primaryText: "#ffffff"
    /// The background of other buttons that are pressed.
    property color pressed: "#dbe6ec"
    /// The frame of what has the focus.
    property color focus: "#e07b00"
    /// Errors.
    property color invalid: "#b3261e"
    /// The line about what has happened meanwhile.
    property color news: "#8a5a00"
    /// The quality Status.Pass.
    property color pass: "#1b7a43"
    /// The quality Status.Marginal.
    property color warning: "#a86800"
    /// The quality Status.Fail.
    property color fail: "#b3261e"

    /// Minimum size of a target for a gloved finger.
    property int touch: 48
    /// The width of a key of the pad.
    property int padKeyWidth: 84
    /// The height of a key of the pad.
    property int padKeyHeight: 60
    /// The distance of contents from the edges of pads and dialogs.
    property int margin: 14
    /// The distance of neighbours.
    property int gap: 8
    /// The radius of corners.
    property int radius: 8

    /// The height of labels and notes.
    property int smallText: 14
    /// The height of the texts in fields and buttons.
    property int bodyText: 17
    /// The height of headings.
    property int headingText: 20
    /// The height of the texts on the pad.
    property int padText: 28

    /// Whether a tap on a field of digits opens the pad. Turn it off if an on-screen keyboard opens by itself.
    property bool padOnTap: true

    /// The colour of a code of Status; transparent for Status.None.
    function qualityColor(quality) {
        const colors = { [Status.Pass]: pass, [Status.Marginal]: warning, [Status.Fail]: fail }
        return colors[quality] || "transparent"
    }

    /// The word for a code of Status; empty for Status.None.
    function qualityWord(quality) {
        const words = { [Status.Pass]: qsTr("Pass"), [Status.Marginal]: qsTr("Warning"), [Status.Fail]: qsTr("Fail") }
        return words[quality] || ""
    }
}
