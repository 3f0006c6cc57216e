import QtQuick 2.15
import QtQuick.Controls 2.15
import UiUtils.Demo 1.0

TabButton {
    id: control

    implicitHeight: 60
    font { pixelSize: Theme.headingText; bold: checked }
    Accessible.name: text

    contentItem: Text {
        text: control.text
        font: control.font
        color: control.checked ? Theme.primary : Theme.mutedText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle {
        color: control.down ? Theme.background : Theme.card

        Rectangle {
            width: parent.width
            height: 4
            color: control.checked ? Theme.primary : Theme.border
        }
        Rectangle {
            anchors { fill: parent; margins: 6 }
            visible: control.activeFocus
            color: "transparent"
            radius: Theme.radius
            border { width: 3; color: Theme.focus }
        }
    }
}
