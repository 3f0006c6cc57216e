import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

Window {
    width: 480
    height: 360
    visible: true
    title: qsTr("Bench supply")

    Rectangle {
        anchors.fill: parent
        color: ControlsStyle.background
    }
    Column {
        x: 40
        y: 20
        width: 400
        spacing: 16

        Rectangle {
            width: parent.width
            height: 60
            radius: ControlsStyle.radius
            opacity: supply_res_current.isReady ? 1 : 0.4
            color: supply_res_current.qualityCode === Status.Fail ? ControlsStyle.fail : ControlsStyle.pass

            Text {
                anchors.centerIn: parent
                text: supply_res_current.label + ": " + supply_res_current.valueString
                textFormat: Text.PlainText
                color: ControlsStyle.primaryText
                font.pixelSize: ControlsStyle.headingText
            }
        }
        ItemEntry { width: parent.width; item: supply_cfg_voltage }
        ItemEntry { width: parent.width; item: supply_cfg_output }
    }
    Picture { isReady: supply_res_current.isReady }
}
