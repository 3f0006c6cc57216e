pragma Singleton
import QtQuick 2.15
import UiUtils 1.0

// Colours and sizes of all entries. Lengths are pixels of the instrument's 1024 x 600 screen. An application with its
// own look writes them before its first page.
QtObject {
    property color background: "#edf2f5"
    property color field: "#ffffff"
    property color disabledField: "#f4f7f9"
    property color border: "#b4c3cd"
    property color text: "#14283a"
    property color mutedText: "#56656f"
    property color primary: "#00689b"
    property color primaryPressed: "#004f77"
    property color primaryText: "#ffffff"
    property color pressed: "#dbe6ec"
    property color focus: "#e07b00"
    property color invalid: "#b3261e"
    property color news: "#8a5a00"
    property color pass: "#1b7a43"
    property color warning: "#a86800"
    property color fail: "#b3261e"

    // Minimum size of a target for a gloved finger.
    property int touch: 48
    property int padKeyWidth: 84
    property int padKeyHeight: 60
    property int margin: 14
    property int gap: 8
    property int radius: 8

    property int smallText: 14
    property int bodyText: 17
    property int headingText: 20
    property int padText: 28

    // Whether a tap on a field of digits opens the pad. Turn it off if an on-screen keyboard opens by itself.
    property bool padOnTap: true

    function qualityColor(quality) {
        const colors = { [Status.Pass]: pass, [Status.Marginal]: warning, [Status.Fail]: fail }
        return colors[quality] || "transparent"
    }

    function qualityWord(quality) {
        const words = { [Status.Pass]: qsTr("Pass"), [Status.Marginal]: qsTr("Warning"), [Status.Fail]: qsTr("Fail") }
        return words[quality] || ""
    }
}
