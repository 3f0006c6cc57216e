import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0

/// Yes or no; written at once.
Entry {
    id: entry

    readonly property bool isOn: currentValue === true || currentValue === "true" || Number(currentValue) === 1

    function take(isOn) {
        if (isOn !== entry.isOn && store(isOn) === "")
            committed(isOn)
        // If the service did not follow, the switch moves back.
        control.checked = Qt.binding(() => entry.isOn)
    }

    rangeText: ""
    plainText: isOn ? qsTr("On") : qsTr("Off")

    Switch {
        id: control
        objectName: "switch"
        Layout.fillWidth: true
        implicitHeight: ControlsStyle.touch
        focus: true
        checked: entry.isOn
        padding: 0
        spacing: ControlsStyle.margin
        text: checked ? qsTr("On") : qsTr("Off")
        font.pixelSize: ControlsStyle.bodyText
        Accessible.name: entry.label
        Accessible.description: entry.note
        Keys.onReturnPressed: entry.take(!entry.isOn)
        Keys.onEnterPressed: entry.take(!entry.isOn)
        onToggled: entry.take(checked)

        contentItem: Text {
            leftPadding: control.indicator.width + control.spacing + 4
            text: control.text
            textFormat: Text.PlainText
            font: control.font
            color: control.enabled ? ControlsStyle.text : ControlsStyle.mutedText
            verticalAlignment: Text.AlignVCenter
        }
        indicator: Rectangle {
            x: 4
            y: (control.height - height) / 2
            width: 64
            height: 36
            radius: height / 2
            opacity: control.enabled ? 1 : 0.5
            color: control.checked ? ControlsStyle.primary : ControlsStyle.field
            border { width: control.checked ? 0 : 2; color: ControlsStyle.mutedText }

            Rectangle {
                x: control.checked ? parent.width - width - 5 : 5
                anchors.verticalCenter: parent.verticalCenter
                width: 26
                height: 26
                radius: 13
                color: control.checked ? ControlsStyle.primaryText : ControlsStyle.mutedText
            }
            Rectangle {
                anchors { fill: parent; margins: -5 }
                visible: control.activeFocus
                radius: height / 2
                color: "transparent"
                border { width: 3; color: ControlsStyle.focus }
            }
        }
    }
}
