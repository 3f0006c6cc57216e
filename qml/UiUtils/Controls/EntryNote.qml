import QtQuick 2.15
import UiUtils.Controls 1.0

// The line below an editor: the permitted values, or what is wrong. It keeps its room, so that nothing moves under a
// finger when a problem comes; words that need more room lie over what follows while the user is at the entry.
Item {
    id: note

    property string text
    // The text that the room is kept for; without `keepsRoom` there is none.
    property string usualText
    property bool keepsRoom: true
    property bool isProblem: false
    property bool isNews: false
    // Whether the user is at the entry.
    property bool isActive: false

    readonly property bool isOpen: isActive && text !== "" && (keepsRoom ? line.truncated : isProblem || isNews)
    readonly property color ink: isProblem ? ControlsStyle.invalid : isNews ? ControlsStyle.news : ControlsStyle.mutedText
    readonly property real markWidth: isProblem ? mark.width + ControlsStyle.gap / 2 : 0

    implicitHeight: keepsRoom ? usual.implicitHeight : 0
    Accessible.role: isProblem ? Accessible.AlertMessage : Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: text === ""

    StyledText {
        id: usual
        width: parent.width
        visible: false
        text: note.usualText === "" ? " " : note.usualText
        font.pixelSize: ControlsStyle.smallText
        wrapMode: Text.Wrap
    }
    Rectangle {
        anchors { fill: sheet; margins: -ControlsStyle.gap / 2 }
        visible: note.isOpen
        radius: ControlsStyle.radius / 2
        color: ControlsStyle.field
        border { width: ControlsStyle.line; color: note.ink }
    }
    Item {
        id: sheet
        width: parent.width
        height: note.isOpen ? whole.implicitHeight : parent.height

        Icon {
            id: mark
            anchors.left: parent.left
            visible: note.isProblem && (note.keepsRoom || note.isOpen)
            name: "warning"
            size: Math.ceil(1.1 * ControlsStyle.smallText)
            color: note.ink
        }
        StyledText {
            id: line
            objectName: "noteText"
            readonly property bool mayElide: true

            anchors { fill: parent; leftMargin: note.markWidth }
            visible: note.keepsRoom && !note.isOpen
            text: note.text
            color: note.ink
            font { pixelSize: ControlsStyle.smallText; weight: note.isProblem ? Font.DemiBold : Font.Normal }
            wrapMode: Text.Wrap
            maximumLineCount: Math.max(1, usual.lineCount)
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        StyledText {
            id: whole
            objectName: "noteText"
            anchors { left: parent.left; right: parent.right; leftMargin: note.markWidth }
            visible: note.isOpen
            text: note.text
            color: note.ink
            font: line.font
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
}
