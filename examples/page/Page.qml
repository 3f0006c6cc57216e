import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import Instrument.Powermeter 1.0

// Every item of the service is a member of Powermeter: "cfg", "res" or "act", and its own name.
Window {
    width: 480
    height: 460
    visible: true
    title: qsTr("Power meter")

    Rectangle {
        anchors.fill: parent
        color: ControlsStyle.background
    }
    Column {
        x: 40
        y: 20
        width: 400
        spacing: 16

        Meter { width: parent.width; item: Powermeter.res_power }
        Meter { width: parent.width; item: Powermeter.res_noise }
        ItemEntry { width: parent.width; item: Powermeter.cfg_wavelength }
        ItemEntry { width: parent.width; item: Powermeter.cfg_reference }
        // A button would lay out markup in its text, and this one comes from the service.
        Button {
            id: measure
            text: Powermeter.act_measure.label
            onClicked: Powermeter.act_measure.invoke()
            contentItem: Text {
                text: measure.text
                textFormat: Text.PlainText
                color: ControlsStyle.text
                font.pixelSize: ControlsStyle.bodyText
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
        }
    }
    Picture { }
}
