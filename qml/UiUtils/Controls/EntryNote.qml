import QtQuick 2.15
import UiUtils.Controls 1.0

// The line below an editor: the permitted values, or what is wrong. It keeps its room, so that nothing moves under a
// finger when a problem comes; words that need more room lie over what is around while the user is at the entry.
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
    // What the words belong to, and never cover.
    property Item editor: null

    // Words that the user has tapped away, because something was under them.
    property string dismissed
    readonly property bool isLong: text !== "" && (keepsRoom ? line.truncated : isProblem || isNews)
    readonly property bool isOpen: isActive && isLong && text !== dismissed
    readonly property color ink: isProblem ? ControlsStyle.invalid : isNews ? ControlsStyle.news : ControlsStyle.mutedText

    implicitHeight: keepsRoom ? usual.implicitHeight : 0
    Accessible.role: isProblem ? Accessible.AlertMessage : Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: text === ""
    onTextChanged: dismissed = ""

    // Of the same height in all scripts.
    readonly property int lineHeight: Math.ceil(1.3 * ControlsStyle.smallText)

    StyledText {
        id: usual
        width: parent.width
        visible: false
        text: note.usualText === "" ? " " : note.usualText
        font.pixelSize: ControlsStyle.smallText
        lineHeightMode: Text.FixedHeight
        lineHeight: note.lineHeight
        wrapMode: Text.Wrap
    }
    Icon {
        id: mark
        anchors.left: parent.left
        visible: note.isProblem && note.keepsRoom
        name: "warning"
        size: Math.ceil(1.1 * ControlsStyle.smallText)
        color: note.ink
    }
    StyledText {
        id: line
        objectName: "noteText"
        readonly property bool mayElide: true

        anchors { fill: parent; leftMargin: note.isProblem ? mark.width + ControlsStyle.gap / 2 : 0 }
        visible: note.keepsRoom
        text: note.text
        color: note.ink
        font { pixelSize: ControlsStyle.smallText; weight: note.isProblem ? Font.DemiBold : Font.Normal }
        lineHeightMode: Text.FixedHeight
        lineHeight: note.lineHeight
        wrapMode: Text.Wrap
        maximumLineCount: Math.max(1, usual.lineCount)
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    Loader {
        active: note.isOpen
        visible: false
        sourceComponent: NoteSheet { owner: note }
    }
}
