import QtQuick 2.15
import UiUtils.Controls 1.0

// An answer in a dialog.
EntryButton {
    id: button

    implicitWidth: Math.max(120, implicitContentWidth + 2 * 12)
    background: Rectangle {
        radius: ControlsStyle.radius
        color: button.filled ? (button.down ? ControlsStyle.primaryPressed : ControlsStyle.primary)
                             : button.down ? ControlsStyle.pressed : ControlsStyle.field
        border { width: button.activeFocus ? 3 : 1; color: button.activeFocus ? ControlsStyle.focus : ControlsStyle.border }
    }
}
