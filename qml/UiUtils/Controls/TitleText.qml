import QtQuick 2.15
import UiUtils.Controls 1.0

/// The title of a page; one line.
StyledText {
    elide: Text.ElideRight
    font { pixelSize: ControlsStyle.titleText; weight: Font.DemiBold }
    Accessible.role: Accessible.Heading
}
