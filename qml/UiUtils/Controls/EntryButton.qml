import QtQuick 2.15
import QtQuick.Controls 2.15
import UiUtils.Controls 1.0

// A button beside or inside an editor.
Button {
    id: control

    property bool filled: false

    implicitWidth: Math.max(ControlsStyle.touch, implicitContentWidth + 2 * 12)
    implicitHeight: ControlsStyle.touch
    padding: 0
    font { pixelSize: ControlsStyle.bodyText; bold: true }
    Accessible.name: text
    // A key that is held down triggers once, and only the button on which it was pressed.
    Keys.onReturnPressed: pressBy(event)
    Keys.onEnterPressed: pressBy(event)

    function pressBy(event) {
        if (!event.isAutoRepeat)
            clicked()
    }

    contentItem: Text {
        text: control.text
        textFormat: Text.PlainText
        font: control.font
        opacity: control.enabled ? 1 : 0.4
        color: control.filled ? ControlsStyle.primaryText : ControlsStyle.primary
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle {
        radius: ControlsStyle.radius
        color: control.filled ? (control.down ? ControlsStyle.primaryPressed : ControlsStyle.primary)
                              : control.down ? ControlsStyle.pressed : "transparent"
        border { width: control.activeFocus ? 3 : 0; color: ControlsStyle.focus }
    }
}
