import QtQuick 2.15
import UiUtils.Controls 1.0

/// A figure that is read from a distance. Where it does not fit it gets smaller, because half a figure is a wrong one.
StyledText {
    fontSizeMode: Text.HorizontalFit
    minimumPixelSize: ControlsStyle.bodyText
    font { pixelSize: ControlsStyle.figureText; weight: Font.DemiBold }
}
