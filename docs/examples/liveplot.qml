import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Plot 1.0

// Two curves that grow, with a limit, a mask and two markers.
Pane {
    id: page

    component Choice: Button {
        id: choice

        contentItem: Text {
            text: choice.text
            textFormat: Text.PlainText
            opacity: choice.enabled ? 1 : 0.4
            font: choice.font
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }

    property int samples: 0

    width: 1024
    height: 600

    function measure() {
        const t = samples++ / 10
        roundTrip.append(t, 180 + 40 * Math.sin(t / 9) + 12 * Math.sin(samples * 12.9898) + (samples % 397 === 200 ? 90 : 0))
        throughput.append(t, samples % 500 > 480 ? NaN : 900 + 60 * Math.cos(t / 14))
    }

    Component.onCompleted: {
        while (samples < 1200)
            measure()
    }
    Timer {
        interval: 100
        repeat: true
        running: page.visible
        onTriggered: page.measure()
    }
    ColumnLayout {
        anchors.fill: parent

        LivePlot {
            id: plot
            objectName: "plot"
            Layout.fillWidth: true
            Layout.fillHeight: true
            focus: true
            textSize: 15
            xLabel: "Time"
            xScale: LivePlot.Duration
            follow: 120
            cursorX: 72
            Accessible.role: Accessible.Chart
            Accessible.name: "Loopback"
            Accessible.description: plot.accessibleText

            PlotCurve {
                id: roundTrip
                name: "Round trip"
                unit: "us"
                PlotLimit { upper: 240; label: "Limit" }
                PlotLimit { upper: 225; status: Status.Marginal }
            }
            PlotCurve {
                id: throughput
                name: "Throughput"
                unit: "Mbit/s"
                rightAxis: true
                PlotMask {
                    points: [[0, 820], [60, 820], [60, 860], [100000, 860]]
                    side: PlotMask.Lower
                    label: "Mask"
                }
            }
            PlotMarker { x: 40; label: "A" }
            PlotMarker { x: 95; label: "B" }
        }
        RowLayout {
            Choice { text: "Zoom in"; onClicked: plot.zoomCentered(1.5) }
            Choice { text: "Zoom out"; onClicked: plot.zoomCentered(1 / 1.5) }
            Choice { text: "Fit"; enabled: !plot.automatic; onClicked: plot.autoscale() }
            Label {
                Layout.fillWidth: true
                text: "A to B: " + plot.deltaText
                textFormat: Text.PlainText
                elide: Text.ElideRight
            }
        }
    }
}
