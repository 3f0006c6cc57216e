import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// The box around an editor: it shows focus, errors, and how the service judges the value.
Rectangle {
    id: frame

    property bool isFocused: false
    property bool isInvalid: false
    property int quality: 0

    radius: ControlsStyle.radius
    color: enabled ? ControlsStyle.field : ControlsStyle.disabledField
    border {
        width: isFocused ? 3 : isInvalid ? 2 : 1
        color: isFocused ? ControlsStyle.focus : isInvalid ? ControlsStyle.invalid : ControlsStyle.border
    }

    Rectangle {
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom; margins: 6 }
        width: 4
        radius: 2
        visible: frame.quality !== Status.None
        color: ControlsStyle.qualityColor(frame.quality)
    }
}
