import QtQuick 2.15
import UiUtils.Controls 1.0

EntryButton {
    id: key

    // The text of the key; a key without one is a command.
    property string types: text
    property bool quiet: false

    objectName: text
    implicitWidth: ControlsStyle.padKeyWidth
    implicitHeight: ControlsStyle.padKeyHeight
    font { pixelSize: quiet ? ControlsStyle.bodyText : ControlsStyle.headingText; bold: true }
    background: Rectangle {
        radius: ControlsStyle.radius
        color: key.filled ? (key.down ? ControlsStyle.primaryPressed : ControlsStyle.primary)
                          : key.down ? ControlsStyle.pressed : key.quiet ? ControlsStyle.background : ControlsStyle.field
        border { width: key.activeFocus ? 3 : 1; color: key.activeFocus ? ControlsStyle.focus : ControlsStyle.border }
    }
}
