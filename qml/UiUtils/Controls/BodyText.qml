import QtQuick 2.15
import UiUtils.Controls 1.0

/// A text that people read; it wraps.
StyledText {
    wrapMode: Text.Wrap
    font.pixelSize: ControlsStyle.bodyText
}
