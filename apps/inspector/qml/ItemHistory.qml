import QtQuick 2.15
import UiUtils.Controls 1.0
import UiUtils.Inspector 1.0
import UiUtils.Plot 1.0

// What a number was in the last minute: from the log of changes, then live. A value stays until the next one.
LivePlot {
    id: plot

    required property Inspector inspector
    required property QtObject item
    property string title
    property real last: NaN

    function begin() {
        const [times, values] = inspector.log.history(item.id)
        curve.setPoints(times, values)
        last = values.length > 0 ? values[values.length - 1] : NaN
        note()
    }

    function note() {
        const now = Date.now() / 1000
        if (now < curve.lastX)
            return
        const value = item.isReady && item.value !== undefined ? Number(item.value) : NaN
        if (!isNaN(last))
            curve.append(now, last)
        if (value !== last)
            curve.append(now, value)
        last = value
    }

    legend: false
    follow: 60
    xScale: LivePlot.Date
    textSize: ControlsStyle.smallText
    emptyText: qsTr("No values yet")
    colors {
        background: ControlsStyle.background
        plotArea: ControlsStyle.field
        text: ControlsStyle.text
        grid: ControlsStyle.grid
        minorGrid: ControlsStyle.grid
        cursor: ControlsStyle.primary
        curves: ControlsStyle.curves
    }
    Accessible.role: Accessible.Chart
    Accessible.name: qsTr("History of %1").arg(title)
    Accessible.description: plot.accessibleText
    Component.onCompleted: begin()
    onItemChanged: {
        if (item !== null)
            begin()
    }

    PlotCurve {
        id: curve
        name: plot.title
        unit: plot.item.unitString
        capacity: 20000
    }
    Connections {
        target: plot.item
        function onValueChanged() { plot.note() }
        function onIsReadyChanged() { plot.note() }
    }
    Timer {
        interval: 1000
        repeat: true
        running: plot.visible
        onTriggered: plot.note()
    }
}
