import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Demo 1.0

FocusScope {
    id: page

    property LoopbackMeasurement measurement

    RowLayout {
        anchors { fill: parent; margins: Theme.margin }
        spacing: Theme.margin

        SampleTable {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            quantity: page.measurement.roundTrip
        }
        SampleTable {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            quantity: page.measurement.throughput
        }
    }
}
