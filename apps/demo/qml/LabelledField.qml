import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import UiUtils.Demo 1.0

// A line to type in, under its name.
ColumnLayout {
    id: labelled

    property string label
    property alias text: field.text
    signal accepted

    spacing: 4

    Text {
        text: labelled.label
        color: Theme.mutedText
        font.pixelSize: Theme.smallText
    }
    TextField {
        id: field
        Layout.fillWidth: true
        implicitHeight: Theme.touch
        activeFocusOnTab: true
        selectByMouse: true
        color: Theme.text
        font.pixelSize: Theme.bodyText
        Accessible.name: labelled.label
        onAccepted: labelled.accepted()

        background: Rectangle {
            radius: Theme.radius
            color: Theme.card
            border {
                width: field.activeFocus ? 3 : 1
                color: field.activeFocus ? Theme.focus : Theme.border
            }
        }
    }
}
