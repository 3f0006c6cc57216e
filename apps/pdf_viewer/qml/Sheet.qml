import QtQuick 2.15
import UiUtils.Viewer 1.0

// A sheet of paper with a page on it, or with the reason why it is empty.
Rectangle {
    id: sheet

    property alias document: picture.document
    property alias page: picture.page
    readonly property alias status: picture.status

    color: Theme.card
    border { width: 1; color: Theme.border }
    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("Page %1").arg(page + 1)
    Accessible.description: note.text

    PageItem {
        id: picture
        objectName: "picture"
        anchors { fill: parent; margins: 1 }
    }
    Text {
        id: note
        // At the top, which is the visible part of a page that is larger than the screen.
        anchors { fill: parent; margins: 2 * Theme.margin }
        text: {
            if (sheet.status === PageItem.Failed)
                return qsTr("Page %1 cannot be drawn. The file may be damaged.").arg(sheet.page + 1)
            return sheet.status === PageItem.Drawing ? qsTr("Page %1").arg(sheet.page + 1) : ""
        }
        textFormat: Text.PlainText
        color: sheet.status === PageItem.Failed ? Theme.invalid : Theme.mutedText
        font.pixelSize: Theme.bodyText
        wrapMode: Text.Wrap
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
    }
}
