import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0
import UiUtils.Demo 1.0

// What only a desktop has: a USB drive to plug, a disk to fill, services to disturb. It is no part of the instrument.
T.Drawer {
    id: drawer

    property QtObject inspector: null
    readonly property alias stick: stick

    objectName: "deskDrawer"
    edge: ControlsStyle.mirrored ? Qt.LeftEdge : Qt.RightEdge
    width: Math.min(ControlsStyle.mm(80), 0.7 * parent.width)
    height: parent.height
    // Pages have the edges for themselves.
    dragMargin: 0
    padding: 0
    enter: Transition { NumberAnimation { duration: 120 } }
    exit: Transition { NumberAnimation { duration: 120 } }
    T.Overlay.modal: Rectangle { color: Qt.rgba(0, 0, 0, 0.4) }

    background: Rectangle { color: ControlsStyle.notice }
    contentItem: ScrollArea {
        padding: ControlsStyle.margin

        UsbStick { id: stick }
        Desk { id: desk }

        HeadingText {
            Layout.fillWidth: true
            text: qsTr("Desk")
        }
        LabelText {
            Layout.fillWidth: true
            text: qsTr("What happens to an instrument in the field, at the press of a button.")
            wrapMode: Text.Wrap
        }
        TouchButton {
            objectName: "inspectorButton"
            Layout.fillWidth: true
            visible: drawer.inspector !== null
            iconName: "search"
            text: qsTr("Inspector (F12)")
            onClicked: {
                drawer.close()
                drawer.inspector.toggle()
            }
        }
        Section {
            Layout.fillWidth: true
            title: qsTr("USB drive")

            TouchButton {
                objectName: "stickButton"
                Layout.fillWidth: true
                enabled: stick.supported
                iconName: stick.attached ? "eject" : "usb"
                text: stick.attached ? qsTr("Unplug") : qsTr("Plug in")
                onClicked: stick.attached ? stick.pull() : stick.plug()
            }
            TouchButton {
                objectName: "yankButton"
                Layout.fillWidth: true
                enabled: stick.supported && stick.attached
                text: qsTr("Pull unnoticed")
                onClicked: stick.yank()
            }
        }
        Section {
            Layout.fillWidth: true
            title: qsTr("Disk")

            TouchButton {
                objectName: "diskButton"
                Layout.fillWidth: true
                text: desk.diskFull ? qsTr("Make space") : qsTr("Fill the disk")
                onClicked: desk.diskFull = !desk.diskFull
            }
        }
        Section {
            Layout.fillWidth: true
            title: qsTr("Unit")
            visible: services.unit !== undefined

            Loader {
                Layout.fillWidth: true
                active: services.unit !== undefined
                sourceComponent: unitButtons
            }
        }
        Section {
            Layout.fillWidth: true
            title: qsTr("Services")
            note: desk.services.length === 0 ? qsTr("They live in another process.") : ""

            Repeater {
                model: desk.services

                RowLayout {
                    readonly property bool isAway: desk.away.includes(modelData)
                    readonly property bool isSlow: desk.slow.includes(modelData)

                    Layout.fillWidth: true
                    spacing: ControlsStyle.touchGap

                    LabelText {
                        property bool mayElide: true
                        Layout.fillWidth: true
                        text: modelData
                        elide: Text.ElideLeft
                    }
                    TouchButton {
                        objectName: "slow " + modelData
                        text: isSlow ? qsTr("Fast") : qsTr("Slow")
                        onClicked: desk.setSlow(modelData, !isSlow)
                    }
                    TouchButton {
                        objectName: "away " + modelData
                        text: isAway ? qsTr("Return") : qsTr("Vanish")
                        onClicked: desk.setAway(modelData, !isAway)
                    }
                }
            }
        }
    }

    Component {
        id: unitButtons

        RowLayout {
            spacing: ControlsStyle.touchGap

            TouchButton {
                objectName: "batteryButton"
                Layout.fillWidth: true
                text: unit_res_batteryLevel.value > 20 ? qsTr("Drain the battery") : qsTr("Charge the battery")
                onClicked: unit_act_setBattery.invokeWithStringArg(unit_res_batteryLevel.value > 20 ? "9" : "100")
            }
            TouchButton {
                objectName: "linkButton"
                Layout.fillWidth: true
                text: unit_res_linkUp.value ? qsTr("Cut the link") : qsTr("Restore the link")
                onClicked: unit_act_setLink.invokeWithStringArg(unit_res_linkUp.value ? "0" : "1")
            }
        }
    }
}
