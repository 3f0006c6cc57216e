import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
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

    T.Switch {
        id: control
        objectName: "switch"
        Layout.fillWidth: true
        implicitHeight: ControlsStyle.touch
        focus: true
        checked: entry.isOn
        text: checked ? qsTr("On") : qsTr("Off")
        font.pixelSize: ControlsStyle.bodyText
        Accessible.name: entry.label
        Accessible.description: entry.spoken(text)
        Keys.onReturnPressed: entry.take(!entry.isOn)
        Keys.onEnterPressed: entry.take(!entry.isOn)
        onToggled: entry.take(checked)

        readonly property real besides: track.width + ControlsStyle.margin

        contentItem: StyledText {
            leftPadding: ControlsStyle.mirrored ? 0 : control.besides
            rightPadding: ControlsStyle.mirrored ? control.besides : 0
            text: control.text
            font: control.font
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
        indicator: Rectangle {
            id: track
            x: ControlsStyle.mirrored ? control.width - width - inset : inset
            y: (control.height - height) / 2
            width: ControlsStyle.mm(11)
            height: ControlsStyle.mm(6)
            radius: height / 2
            color: !control.enabled ? ControlsStyle.disabledField : control.checked ? ControlsStyle.primary : ControlsStyle.field
            border { width: 2 * ControlsStyle.line; color: !control.enabled ? ControlsStyle.disabledText : control.checked ? ControlsStyle.primary : ControlsStyle.border }

            // Room for the frame of the focus.
            readonly property real inset: ControlsStyle.focusLine
            readonly property bool isRight: control.checked !== ControlsStyle.mirrored

            Rectangle {
                readonly property real inset: 4 * ControlsStyle.line

                x: track.isRight ? parent.width - width - inset : inset
                anchors.verticalCenter: parent.verticalCenter
                width: height
                height: parent.height - 2 * inset
                radius: height / 2
                color: !control.enabled ? ControlsStyle.disabledText : control.checked ? ControlsStyle.primaryText : ControlsStyle.mutedText
            }
            FocusFrame {
                control: control
                radius: height / 2
            }
        }
    }
}
