import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0

// A key of the pad.
T.Button {
    id: key

    property bool filled: false
    // An action, not a character.
    property bool quiet: false

    leftPadding: ControlsStyle.line
    rightPadding: leftPadding
    font { pixelSize: quiet && text.length > 1 ? ControlsStyle.bodyText : ControlsStyle.headingText; weight: Font.DemiBold }
    Accessible.name: text
    Keys.onReturnPressed: pressBy(event)
    Keys.onEnterPressed: pressBy(event)

    function pressBy(event) {
        if (!event.isAutoRepeat)
            clicked()
    }

    contentItem: Text {
        text: key.text
        textFormat: Text.PlainText
        font: key.font
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: ControlsStyle.smallText
        elide: Text.ElideRight
        color: !key.enabled ? ControlsStyle.disabledText : key.filled ? ControlsStyle.primaryText : ControlsStyle.primary
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    background: Rectangle {
        radius: ControlsStyle.radius
        color: key.filled ? (key.down ? ControlsStyle.primaryPressed : ControlsStyle.primary)
                          : key.down ? ControlsStyle.pressed
                          : !key.enabled ? ControlsStyle.disabledField : key.quiet ? ControlsStyle.background : ControlsStyle.field
        border { width: key.filled ? 0 : ControlsStyle.line; color: key.enabled ? ControlsStyle.border : ControlsStyle.divider }
    }

    FocusWatch {}
}
