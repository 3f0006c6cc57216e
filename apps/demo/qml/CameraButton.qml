import QtQuick 2.15
import QtQuick.Controls 2.15
import UiUtils.Demo 1.0

// Takes a picture of the screen.
Button {
    id: control

    readonly property color ink: enabled ? Theme.primary : Theme.disabled

    implicitWidth: Theme.touch
    implicitHeight: Theme.touch
    padding: 0
    Accessible.name: qsTr("Take a screenshot")
    // A key that is held down triggers once.
    Keys.onReturnPressed: pressBy(event)
    Keys.onEnterPressed: pressBy(event)

    function pressBy(event) {
        if (!event.isAutoRepeat)
            clicked()
    }

    contentItem: Item {
        Rectangle {
            anchors { bottom: body.top; bottomMargin: -3; horizontalCenter: body.horizontalCenter }
            width: 12
            height: 8
            radius: 2
            color: control.ink
        }
        Rectangle {
            id: body
            anchors { centerIn: parent; verticalCenterOffset: 2 }
            width: 30
            height: 21
            radius: 4
            color: control.ink

            Rectangle {
                anchors.centerIn: parent
                width: 13
                height: 13
                radius: width / 2
                color: control.ink
                border { width: 2; color: Theme.primaryText }
            }
        }
    }
    background: Rectangle {
        radius: Theme.radius
        color: control.down ? Theme.background : Theme.card
        border { width: 1; color: Theme.border }
    }

    FocusFrame {}
}
