import QtQuick 2.15
import UiUtils.Controls 1.0

/// The name of a figure or a field, or a note; one line unless `wrapMode` says otherwise.
StyledText {
    muted: true
    elide: Text.ElideRight
    font.pixelSize: ControlsStyle.labelText
}
