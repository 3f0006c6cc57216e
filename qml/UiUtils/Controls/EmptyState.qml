import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0

/// Takes the place of contents that are not there yet, and says how to get them.
ColumnLayout {
    id: empty

    property string iconName: "information"
    property string title
    property string text
    /// The text of the button; empty for none.
    property string actionText
    /// The button was pressed.
    signal actionTriggered

    spacing: ControlsStyle.gap

    Item { Layout.fillHeight: true }
    Icon {
        Layout.alignment: Qt.AlignHCenter
        name: empty.iconName
        size: ControlsStyle.mm(12)
        color: ControlsStyle.mutedText
    }
    HeadingText {
        Layout.fillWidth: true
        visible: text !== ""
        text: empty.title
        horizontalAlignment: Text.AlignHCenter
    }
    BodyText {
        Layout.alignment: Qt.AlignHCenter
        Layout.fillWidth: true
        Layout.maximumWidth: ControlsStyle.mm(110)
        visible: text !== ""
        text: empty.text
        muted: true
        horizontalAlignment: Text.AlignHCenter
    }
    TouchButton {
        objectName: "emptyAction"
        Layout.alignment: Qt.AlignHCenter
        Layout.topMargin: ControlsStyle.gap
        visible: text !== ""
        text: empty.actionText
        filled: true
        onClicked: empty.actionTriggered()
    }
    Item { Layout.fillHeight: true }
}
