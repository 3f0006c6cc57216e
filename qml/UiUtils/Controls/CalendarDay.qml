import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0

// A day of a CalendarGrid.
T.AbstractButton {
    id: control

    // Whether the day is in the month that is shown.
    property bool isWithin: true

    implicitWidth: ControlsStyle.touch
    implicitHeight: ControlsStyle.touch
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.Button
    Accessible.checkable: true
    Accessible.checked: checked

    contentItem: StyledText {
        text: control.text
        color: !control.enabled ? ControlsStyle.disabledText : control.checked ? ControlsStyle.primaryText
            : control.isWithin ? ControlsStyle.primary : ControlsStyle.mutedText
        font { pixelSize: ControlsStyle.bodyText; weight: control.isWithin ? Font.DemiBold : Font.Normal }
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    background: Rectangle {
        radius: ControlsStyle.radius
        color: control.checked ? control.enabled ? ControlsStyle.primary : ControlsStyle.disabledField
            : control.down ? ControlsStyle.pressed : "transparent"
    }
}
