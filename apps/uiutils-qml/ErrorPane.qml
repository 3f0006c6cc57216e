import QtQuick 2.15
import UiUtils.Controls 1.0

// Mistakes in files, at the lower edge of the page that still runs.
Rectangle {
    id: pane
    objectName: "errorPane"

    property string text

    z: 1e6
    anchors { left: parent ? parent.left : undefined; right: parent ? parent.right : undefined; bottom: parent ? parent.bottom : undefined }
    height: parent ? Math.min(Math.max(message.height, close.height) + 2 * ControlsStyle.gap, parent.height * 0.6) : 0
    color: ControlsStyle.card
    border { color: ControlsStyle.invalid; width: ControlsStyle.mm(0.5) }
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    // Nothing below is pressed through it.
    MouseArea { anchors.fill: parent }

    Flickable {
        id: area
        anchors { fill: parent; margins: ControlsStyle.gap; rightMargin: close.width + 2 * ControlsStyle.gap }
        contentHeight: message.height
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: message
            width: area.width
            spacing: ControlsStyle.gap / 2

            HeadingText {
                width: area.width
                text: qsTr("The files have mistakes. The page is as it was before.")
            }
            BodyText {
                objectName: "errorText"
                width: area.width
                text: pane.text
                wrapMode: Text.WrapAtWordBoundaryOrAnywhere
            }
        }
    }
    IconButton {
        id: close
        anchors { right: parent.right; top: parent.top; margins: ControlsStyle.gap }
        iconName: "close"
        name: qsTr("Close")
        onClicked: pane.visible = false
    }
}
