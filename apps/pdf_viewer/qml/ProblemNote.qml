import QtQuick 2.15
import UiUtils.Viewer 1.0

// Says which file cannot be shown, why, and what to do.
Rectangle {
    id: note

    property ViewerDocument document

    width: Math.min(parent.width - 4 * Theme.margin, Theme.mm(110))
    height: words.implicitHeight + 4 * Theme.margin
    radius: Theme.radius
    color: Theme.card
    border { width: Theme.line; color: Theme.border }
    Accessible.role: Accessible.AlertMessage
    Accessible.name: document.problem
    Accessible.description: document.path + "\n" + document.advice

    Column {
        id: words
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: 2 * Theme.margin }
        spacing: Theme.margin

        Text {
            width: parent.width
            text: note.document.problem
            textFormat: Text.PlainText
            color: Theme.invalid
            font { pixelSize: Theme.headingText; bold: true }
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
        }
        Text {
            width: parent.width
            text: note.document.path
            textFormat: Text.PlainText
            color: Theme.mutedText
            font.pixelSize: Theme.smallText
            wrapMode: Text.WrapAnywhere
            horizontalAlignment: Text.AlignLeft
            maximumLineCount: 6
            elide: Text.ElideRight
        }
        Text {
            width: parent.width
            text: note.document.advice
            textFormat: Text.PlainText
            color: Theme.text
            font.pixelSize: Theme.bodyText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
        }
    }
}
