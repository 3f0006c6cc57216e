import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0

// One of the choices of a SegmentedChoice.
T.AbstractButton {
    id: segment

    // Whether a line separates it from the segment before.
    property bool isDivided: false

    implicitWidth: Math.max(ControlsStyle.mm(14), natural.oneLine + 2 * ControlsStyle.margin)
    implicitHeight: Math.max(ControlsStyle.touch, label.implicitHeight + ControlsStyle.gap)
    focusPolicy: Qt.NoFocus
    font { pixelSize: ControlsStyle.bodyText; weight: checked ? Font.DemiBold : Font.Normal }
    Accessible.role: Accessible.RadioButton
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: clicked()
    Accessible.onToggleAction: clicked()

    // As the chosen one, so that a choice moves nothing.
    NaturalWidth {
        id: natural
        font { pixelSize: ControlsStyle.bodyText; weight: Font.DemiBold }
        text: segment.text
    }
    leftPadding: ControlsStyle.gap
    rightPadding: ControlsStyle.gap
    contentItem: StyledText {
        id: label
        text: segment.text
        font: segment.font
        color: !segment.enabled ? ControlsStyle.disabledText : segment.checked ? ControlsStyle.primaryText : ControlsStyle.text
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
    background: Item {
        Rectangle {
            anchors { fill: parent; margins: ControlsStyle.line }
            radius: ControlsStyle.radius - ControlsStyle.line
            color: segment.checked && segment.enabled ? ControlsStyle.primary : segment.down ? ControlsStyle.pressed : "transparent"
        }
        Rectangle {
            anchors { left: parent.left; top: parent.top; bottom: parent.bottom; topMargin: ControlsStyle.gap; bottomMargin: ControlsStyle.gap }
            width: ControlsStyle.line
            visible: segment.isDivided
            color: ControlsStyle.divider
        }
    }
}
