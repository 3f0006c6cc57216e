import QtQuick 2.15
import QtQuick.Controls 2.15
import UiUtils.Demo 1.0

// One of a few choices side by side in a frame.
RadioButton {
    id: control

    implicitHeight: Theme.touch + 4
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    indicator: null
    font { pixelSize: Theme.bodyText; bold: true }
    Accessible.name: text
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Text {
        text: control.text
        textFormat: Text.PlainText
        font: control.font
        color: control.checked ? Theme.primary : Theme.mutedText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
    background: Item {
        Rectangle {
            anchors { fill: parent; margins: 4 }
            radius: Theme.radius - 3
            color: control.checked ? Theme.selected : control.down ? Theme.card : "transparent"
        }
    }

    FocusFrame {}
}
