import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0

/// A button for gloved fingers: filled for the main action of a page, outlined for the others. A text that does not fit
/// in one line takes more.
T.Button {
    id: control

    /// The name of an icon before the text; empty for none.
    property string iconName
    /// For the main action.
    property bool filled: false
    /// For what destroys.
    property bool danger: false
    /// Without a frame, for actions beside others.
    property bool quiet: false
    /// The colour of text and icon.
    readonly property color ink: !enabled ? ControlsStyle.disabledText : filled ? ControlsStyle.primaryText : accent
    readonly property color accent: danger ? ControlsStyle.fail : ControlsStyle.primary

    implicitWidth: Math.max(ControlsStyle.touch, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(ControlsStyle.touch, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: text === "" ? 0 : ControlsStyle.margin
    rightPadding: leftPadding
    topPadding: 2
    bottomPadding: 2
    font { pixelSize: ControlsStyle.bodyText; weight: Font.DemiBold }
    Accessible.name: text
    // A key that is held down triggers once, and only the button on which it was pressed.
    Keys.onReturnPressed: pressBy(event)
    Keys.onEnterPressed: pressBy(event)

    function pressBy(event) {
        if (!event.isAutoRepeat)
            clicked()
    }

    contentItem: Item {
        implicitWidth: row.room + natural.oneLine
        implicitHeight: Math.max(mark.height, label.implicitHeight)

        Row {
            id: row
            // What the text has not.
            readonly property real room: mark.visible ? mark.width + (label.visible ? spacing : 0) : 0
            anchors.centerIn: parent
            spacing: ControlsStyle.gap

            Icon {
                id: mark
                anchors.verticalCenter: parent.verticalCenter
                visible: control.iconName !== ""
                name: control.iconName
                color: control.ink
            }
            StyledText {
                id: label
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(natural.oneLine, control.availableWidth - row.room)
                visible: text !== ""
                text: control.text
                color: control.ink
                font: control.font
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
        NaturalWidth {
            id: natural
            font: control.font
            text: control.text
        }
    }
    background: Rectangle {
        radius: ControlsStyle.radius
        color: {
            if (control.filled && control.enabled)
                return control.danger ? control.accent : control.down ? ControlsStyle.primaryPressed : ControlsStyle.primary
            if (control.down)
                return ControlsStyle.pressed
            return control.quiet ? "transparent" : control.enabled ? ControlsStyle.field : ControlsStyle.disabledField
        }
        opacity: control.danger && control.filled && control.down ? 0.8 : 1
        border { width: control.quiet || control.filled && control.enabled ? 0 : ControlsStyle.line; color: ControlsStyle.border }
    }

    FocusWatch {}
}
