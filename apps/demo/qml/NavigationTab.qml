import QtQuick 2.15
import QtQuick.Controls 2.15
import UiUtils.Demo 1.0

TabButton {
    id: control

    // Something on the page is not finished yet.
    property bool marked: false

    implicitHeight: 60
    font { pixelSize: Theme.headingText; bold: checked }
    Accessible.name: marked ? qsTr("%1, with changes that are not applied").arg(text) : text

    contentItem: Text {
        id: label
        text: control.text
        textFormat: Text.PlainText
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
        ChangeMark {
            anchors { horizontalCenter: parent.horizontalCenter; horizontalCenterOffset: label.implicitWidth / 2 + 16 }
            anchors.verticalCenter: parent.verticalCenter
            visible: control.marked
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
