pragma Singleton
import QtQuick 2.15
import UiUtils 1.0

CommonTheme {
    readonly property color selected: "#d3e5ef"
    readonly property color primaryPressed: "#004f77"
    readonly property color primaryText: "#ffffff"
    readonly property color marginal: "#c98500"

    readonly property int figureText: 46

    // No status, or a pass, needs no alarm colour.
    function statusColor(status) {
        if (status === Status.Fail)
            return fail
        return status === Status.Marginal ? marginal : primary
    }

    function statusIcon(status) {
        const names = { [Status.Pass]: "pass", [Status.Marginal]: "marginal", [Status.Fail]: "fail" }
        return names[status] ? "qrc:/uiutils/images/" + names[status] + "_icon.png" : ""
    }
}
