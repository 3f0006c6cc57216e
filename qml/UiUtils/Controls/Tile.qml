import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
import UiUtils 1.0
import UiUtils.Controls 1.0

/// A large button of a home page: where it leads, and how things stand there.
T.AbstractButton {
    id: tile

    /// The name of an icon.
    property string iconName
    property string title
    /// How things stand, in a few words.
    property string note
    /// A code of Status, which takes the place of the note.
    property int status: Status.None
    /// Whether something there needs attention.
    property bool marked: false

    implicitWidth: Math.max(ControlsStyle.mm(30), implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(ControlsStyle.touch, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: ControlsStyle.margin
    rightPadding: ControlsStyle.margin
    topPadding: ControlsStyle.gap / 2
    bottomPadding: ControlsStyle.gap / 2
    Accessible.role: Accessible.Button
    Accessible.name: title
    Accessible.description: [ControlsStyle.qualityWord(status), note].filter(part => part !== "").join(", ")
    Keys.onReturnPressed: pressBy(event)
    Keys.onEnterPressed: pressBy(event)

    function pressBy(event) {
        if (!event.isAutoRepeat)
            clicked()
    }

    contentItem: RowLayout {
        spacing: ControlsStyle.margin

        Icon {
            name: tile.iconName
            size: ControlsStyle.mm(7)
            color: tile.enabled ? ControlsStyle.primary : ControlsStyle.disabledText
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 0

            BodyText {
                Layout.fillWidth: true
                text: tile.title
                font.weight: Font.DemiBold
                maximumLineCount: 1
                elide: Text.ElideRight
                Accessible.ignored: true
            }
            LabelText {
                Layout.fillWidth: true
                visible: text !== "" && tile.status === Status.None
                text: tile.note
                color: tile.marked ? ControlsStyle.news : ControlsStyle.mutedText
                maximumLineCount: 3
                wrapMode: Text.Wrap
                elide: Text.ElideRight
                Accessible.ignored: true
            }
            // Most tiles have no verdict.
            Loader {
                active: tile.status !== Status.None
                visible: active
                sourceComponent: StatusMark {
                    status: tile.status
                    Accessible.ignored: true
                }
            }
        }
    }
    background: Rectangle {
        radius: ControlsStyle.radius
        color: tile.down ? ControlsStyle.pressed : tile.marked ? ControlsStyle.notice : ControlsStyle.card
        border { width: ControlsStyle.line; color: tile.marked ? ControlsStyle.news : ControlsStyle.divider }
    }

    FocusWatch {}
}
