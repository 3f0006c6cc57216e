import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Demo 1.0

FocusScope {
    id: page

    property LoopbackMeasurement measurement
    readonly property bool isFailed: measurement.state === LoopbackMeasurement.Failed

    ColumnLayout {
        anchors { fill: parent; margins: Theme.margin }
        spacing: Theme.margin

        RowLayout {
            spacing: Theme.margin

            QuantityCard {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: 1
                quantity: page.measurement.roundTrip
                slots: Math.max(page.measurement.roundTripSamples, quantity.count)
                steps: [0.01, 0.02, 0.05, 0.1, 0.2, 0.5, 1, 2, 5, 10, 20, 50]
            }
            QuantityCard {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: 1
                quantity: page.measurement.throughput
                slots: Math.max(page.measurement.throughputSamples, quantity.count)
                steps: [50, 100, 200, 500, 1000, 2000, 5000, 10000, 20000, 50000, 100000]
            }
        }
        Card {
            Layout.fillWidth: true
            Layout.preferredHeight: 80
            border.color: page.isFailed ? Theme.fail : Theme.border

            RowLayout {
                anchors { fill: parent; leftMargin: Theme.margin; rightMargin: Theme.margin }
                spacing: Theme.margin

                ColumnLayout {
                    Layout.fillWidth: true
                    spacing: 6

                    Text {
                        Layout.fillWidth: true
                        visible: !page.isFailed
                        text: page.measurement.running && page.measurement.serverAddress
                              ? qsTr("%1 \u2013 server at %2").arg(page.measurement.stateText)
                                                              .arg(page.measurement.serverAddress)
                              : page.measurement.stateText
                        textFormat: Text.PlainText
                        color: Theme.text
                        font.pixelSize: Theme.bodyText
                        elide: Text.ElideRight
                    }
                    Rectangle {
                        Layout.fillWidth: true
                        Layout.preferredHeight: 12
                        visible: !page.isFailed
                        radius: 6
                        color: Theme.background
                        Accessible.role: Accessible.ProgressBar
                        Accessible.name: qsTr("Progress of the measurement")

                        Rectangle {
                            width: parent.width * Math.min(1, page.measurement.progress)
                            height: parent.height
                            radius: parent.radius
                            color: Theme.primary
                        }
                    }
                    Text {
                        Layout.fillWidth: true
                        visible: page.isFailed
                        text: page.measurement.errorText
                        textFormat: Text.PlainText
                        color: Theme.fail
                        font.pixelSize: Theme.smallText
                        wrapMode: Text.WordWrap
                        maximumLineCount: 4
                        elide: Text.ElideRight
                    }
                }
                ActionButton {
                    Layout.preferredWidth: 180
                    focus: true
                    filled: !page.measurement.running
                    text: page.measurement.running ? qsTr("Cancel") : qsTr("Start")
                    onClicked: page.measurement.running ? page.measurement.cancel() : page.measurement.start()
                }
            }
        }
    }
}
