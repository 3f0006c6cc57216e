import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Demo 1.0

// Settings that belong together, under a heading.
Card {
    id: card

    property string title
    property string note
    default property alias content: column.data
    readonly property var rows: {
        const found = []
        for (let i = 0; i < column.children.length; ++i) {
            if (column.children[i].entry !== undefined)
                found.push(column.children[i])
        }
        return found
    }
    readonly property int changed: rows.filter(row => row.changed).length
    readonly property bool acceptable: rows.every(row => row.acceptable)

    signal edited
    signal refused(string words)

    function reset() {
        rows.forEach(row => row.reset())
    }

    implicitHeight: column.implicitHeight + 2 * Theme.margin + (note ? noteText.height + Theme.margin : 0)
    Component.onCompleted: rows.forEach(row => {
        row.edited.connect(card.edited)
        row.refused.connect(card.refused)
    })

    ColumnLayout {
        id: column
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.margin }
        spacing: Theme.margin

        Text {
            text: card.title
            textFormat: Text.PlainText
            color: Theme.text
            font { pixelSize: Theme.headingText; bold: true }
        }
    }
    Text {
        id: noteText
        anchors { left: parent.left; right: parent.right; top: column.bottom; margins: Theme.margin }
        height: text ? implicitHeight : 0
        text: card.note
        textFormat: Text.PlainText
        color: Theme.mutedText
        font.pixelSize: Theme.smallText
        wrapMode: Text.Wrap
    }
}
