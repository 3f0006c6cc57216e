pragma Singleton
import QtQuick 2.15

CommonTheme {
    readonly property color selected: "#d3e5ef"
    readonly property color primaryPressed: "#004f77"
    readonly property color primaryText: "#ffffff"
    readonly property color marginal: "#c98500"

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
