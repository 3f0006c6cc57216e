import QtQuick 2.15
import QtQuick.Controls 2.15
import UiUtils.Demo 1.0

// A button for touch: filled for the main action, outlined for the others.
Button {
    id: control

    property bool filled: true

    implicitHeight: Theme.touch + 4
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    font { pixelSize: Theme.bodyText; bold: true }
    Accessible.name: text
    // A key that is held down triggers once.
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
        color: !control.filled ? (control.enabled ? Theme.primary : Theme.disabled) : Theme.primaryText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
    background: Rectangle {
        radius: Theme.radius
        color: {
            if (!control.filled)
                return control.down ? Theme.background : Theme.card
            if (!control.enabled)
                return Theme.disabled
            return control.down ? Theme.primaryPressed : Theme.primary
        }
        border { width: control.filled ? 0 : 2; color: control.enabled ? Theme.primary : Theme.disabled }
    }

    FocusFrame {}
}
