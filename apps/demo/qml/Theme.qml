pragma Singleton
import QtQuick 2.15

// Colours and sizes of every page. Lengths are pixels of the instrument's 1024 x 600 screen.
QtObject {
    readonly property color background: "#edf2f5"
    readonly property color card: "#ffffff"
    // Of what is entered and not applied yet.
    readonly property color changedCard: "#fff4e0"
    readonly property color selected: "#d3e5ef"
    readonly property color border: "#cfdae2"
    readonly property color text: "#14283a"
    readonly property color mutedText: "#56656f"
    readonly property color primary: "#00689b"
    readonly property color primaryPressed: "#004f77"
    readonly property color primaryText: "#ffffff"
    readonly property color disabled: "#a3b1bb"
    readonly property color focus: "#e07b00"
    readonly property color fail: "#b3261e"
    readonly property color marginal: "#c98500"

    readonly property int touch: 48
    readonly property int margin: 14
    readonly property int gap: 10
    readonly property int radius: 8

    readonly property int smallText: 14
    readonly property int bodyText: 17
    readonly property int headingText: 20
    readonly property int figureText: 46

    // What has no status, or passes, needs no alarm.
    function statusColor(status) {
        if (status === 64)
            return fail
        return status === 32 ? marginal : primary
    }

    function statusIcon(status) {
        const names = { 16: "pass", 32: "marginal", 64: "fail" }
        return names[status] ? "qrc:/uiutils/images/" + names[status] + "_icon.png" : ""
    }
}
