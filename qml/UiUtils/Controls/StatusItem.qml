import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils 1.0
import UiUtils.Controls 1.0

/// One state of the instrument in its StatusBar: an icon, and a short text where the icon alone does not tell.
T.AbstractButton {
    id: control

    property string iconName
    /// What a screen reader says before the text.
    property string name
    /// A code of Status: how good the state is.
    property int status: Status.None
    /// Whether it says that something is not there, such as a drive. It keeps its place, so that nothing moves.
    property bool dimmed: false
    readonly property color ink: dimmed ? ControlsStyle.mutedText : status === Status.None ? ControlsStyle.text : ControlsStyle.qualityColor(status)

    implicitWidth: Math.max(ControlsStyle.touch + ControlsStyle.touchGap, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: ControlsStyle.touch
    leftPadding: ControlsStyle.gap
    rightPadding: ControlsStyle.gap
    Accessible.role: Accessible.Button
    Accessible.name: [name, text].filter(part => part !== "").join(" ")
    Accessible.description: ControlsStyle.qualityWord(status)
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        implicitWidth: row.implicitWidth

        Row {
            id: row
            anchors.centerIn: parent
            spacing: ControlsStyle.gap / 2

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                visible: name !== ""
                name: control.iconName
                color: control.ink
                size: ControlsStyle.mm(4.2)
            }
            LabelText {
                // Such as the name of a user.
                property bool mayElide: true
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(Math.ceil(implicitWidth), ControlsStyle.mm(34))
                visible: text !== ""
                elide: Text.ElideRight
                maximumLineCount: 1
                text: control.text
                color: control.ink
                Accessible.ignored: true
            }
            // A colour alone would not be seen by everybody.
            Icon {
                anchors.verticalCenter: parent.verticalCenter
                visible: name !== "" && control.status !== Status.Pass
                name: ControlsStyle.qualityIcon(control.status)
                color: control.ink
                size: ControlsStyle.mm(3.2)
            }
        }
    }
    background: Rectangle {
        radius: ControlsStyle.radius
        color: control.down ? ControlsStyle.pressed : "transparent"
    }

    FocusWatch { within: true }
}
