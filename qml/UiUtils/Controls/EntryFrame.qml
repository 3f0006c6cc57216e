import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// The box around an editor: it shows where typing goes, errors, and how the service judges the value.
Rectangle {
    id: frame

    // Where typing goes; the frame for the focus of keys is the editor's.
    property bool isFocused: false
    property bool isInvalid: false
    property int quality: 0

    radius: ControlsStyle.radius
    color: enabled ? ControlsStyle.field : ControlsStyle.disabledField
    border {
        width: isFocused || isInvalid ? 2 * ControlsStyle.line : ControlsStyle.line
        color: isInvalid ? ControlsStyle.invalid : isFocused ? ControlsStyle.text : enabled ? ControlsStyle.border : ControlsStyle.divider
    }

    Rectangle {
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom; margins: ControlsStyle.gap / 2 }
        width: ControlsStyle.focusLine
        radius: width / 2
        visible: frame.quality !== Status.None
        color: ControlsStyle.qualityColor(frame.quality)
    }
}
