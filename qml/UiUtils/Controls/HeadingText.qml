import QtQuick 2.15
import UiUtils.Controls 1.0

/// The heading of a card or a section.
StyledText {
    wrapMode: Text.Wrap
    maximumLineCount: 2
    elide: Text.ElideRight
    font { pixelSize: ControlsStyle.headingText; weight: Font.DemiBold }
    Accessible.role: Accessible.Heading
}
