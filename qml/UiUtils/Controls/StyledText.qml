import QtQuick 2.15
import UiUtils.Controls 1.0

/// A text of a page. Never markup; its alignment follows the layout, not the language of the text.
Text {
    /// Whether the text is of less importance.
    property bool muted: false

    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft
    color: !enabled ? ControlsStyle.disabledText : muted ? ControlsStyle.mutedText : ControlsStyle.text
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
