import QtQuick 2.15

// Colours and sizes that the screens of all programs share; each program's `Theme` adds its own. Lengths are pixels of
// the instrument's 1024 x 600 screen.
QtObject {
    readonly property color background: "#edf2f5"
    readonly property color card: "#ffffff"
    // Background of what needs attention: an entry that is not applied yet, a warning.
    readonly property color notice: "#fff4e0"
    readonly property color border: "#cfdae2"
    readonly property color text: "#14283a"
    readonly property color mutedText: "#56656f"
    readonly property color primary: "#00689b"
    readonly property color disabled: "#a3b1bb"
    readonly property color focus: "#e07b00"
    readonly property color fail: "#b3261e"

    // Minimum size of a target for a gloved finger.
    readonly property int touch: 48
    readonly property int margin: 14
    readonly property int gap: 10
    readonly property int radius: 8

    readonly property int smallText: 14
    readonly property int bodyText: 17
    readonly property int headingText: 20
}
