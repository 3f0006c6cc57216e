import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

Window {
    width: 480
    height: 600
    visible: true
    title: qsTr("Link budget")

    Rectangle {
        anchors.fill: parent
        color: ControlsStyle.background
    }
    // On the bus the service may come after the page: its items then get their names, and this is evaluated again.
    Loader {
        id: budget
        x: 40
        y: 20
        width: 400
        active: typeof linkbudget_res_loss !== "undefined"

        sourceComponent: Column {
            spacing: 14

            Rectangle {
                width: parent.width
                height: 60
                radius: ControlsStyle.radius
                opacity: linkbudget_res_loss.isReady ? 1 : 0.4
                color: linkbudget_res_loss.qualityCode === Status.Fail ? ControlsStyle.fail
                     : linkbudget_res_loss.qualityCode === Status.Marginal ? ControlsStyle.warning : ControlsStyle.pass

                Text {
                    anchors.centerIn: parent
                    text: linkbudget_res_loss.label + ": " + linkbudget_res_loss.valueString
                    textFormat: Text.PlainText
                    color: ControlsStyle.primaryText
                    font.pixelSize: ControlsStyle.headingText
                }
            }
            ItemEntry { width: parent.width; item: linkbudget_cfg_length }
            ItemEntry { width: parent.width; item: linkbudget_cfg_attenuation }
            ItemEntry { width: parent.width; item: linkbudget_cfg_connectors }
            ItemEntry { width: parent.width; item: linkbudget_cfg_allowed }
            Row {
                spacing: ControlsStyle.gap
                Repeater {
                    model: ["1310", "1550"]
                    Button {
                        id: button
                        text: qsTr("%1 nm").arg(modelData)
                        onClicked: answer.text = linkbudget_act_suggest.invokeWithStringArg(modelData)
                        contentItem: Text {
                            text: button.text
                            textFormat: Text.PlainText
                            color: ControlsStyle.text
                            font.pixelSize: ControlsStyle.bodyText
                            horizontalAlignment: Text.AlignHCenter
                            verticalAlignment: Text.AlignVCenter
                        }
                    }
                }
            }
            Text {
                id: answer
                textFormat: Text.PlainText
                color: ControlsStyle.text
                font.pixelSize: ControlsStyle.bodyText
            }
        }
    }
    Text {
        anchors.centerIn: parent
        visible: !budget.active
        text: qsTr("Waiting for the service")
        textFormat: Text.PlainText
    }
    Picture { isReady: budget.active && linkbudget_res_loss.isReady }
}
