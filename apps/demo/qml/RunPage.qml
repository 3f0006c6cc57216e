import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Demo 1.0

// Measures: both quantities live, with their limits.
KitPage {
    id: page

    property Session session
    readonly property LoopbackMeasurement measurement: session.measurement
    readonly property bool isFailed: measurement.state === LoopbackMeasurement.Failed

    // A tap that bounces off a glove does not stop what it has started.
    Timer {
        id: secondTap
        interval: Qt.styleHints.mouseDoubleClickInterval
    }

    function begin() {
        measurement.start()
        secondTap.start()
    }

    Accessible.name: qsTr("Run")
    scrolls: false
    footer: [
        ProgressLine {
            Layout.fillWidth: true
            visible: !page.isFailed
            value: page.measurement.progress
            text: page.measurement.running && page.measurement.serverAddress !== ""
                  ? qsTr("%1, server at %2").arg(page.measurement.stateText).arg(page.measurement.serverAddress)
                  : page.measurement.stateText
        },
        InlineProblem {
            Layout.fillWidth: true
            visible: page.isFailed
            text: page.measurement.errorText
        },
        StatusMark {
            objectName: "verdict"
            status: page.measurement.status
            large: true
        },
        TouchButton {
            objectName: "startButton"
            Layout.minimumWidth: ControlsStyle.mm(30)
            filled: true
            danger: page.measurement.running
            iconName: page.measurement.running ? "stop" : "run"
            text: page.measurement.running ? qsTr("Stop") : qsTr("Start")
            onClicked: {
                if (page.measurement.running && !secondTap.running)
                    page.measurement.cancel()
                else if (!page.measurement.running)
                    page.begin()
            }
        }
    ]

    RowLayout {
        Layout.fillWidth: true
        Layout.fillHeight: true
        spacing: ControlsStyle.margin

        QuantityCard {
            objectName: "roundTripCard"
            quantity: page.measurement.roundTrip
            isMaximum: true
        }
        QuantityCard {
            objectName: "throughputCard"
            quantity: page.measurement.throughput
        }
    }
}
