import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Demo 1.0

// Icon and word of a status; empty without a status.
Row {
    id: badge

    property int status: Status.None
    property string word
    property int pixelSize: Theme.bodyText

    visible: status !== Status.None
    spacing: 6

    Image {
        anchors.verticalCenter: parent.verticalCenter
        width: 22
        height: 22
        smooth: true
        source: Theme.statusIcon(badge.status)
    }
    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: badge.word
        textFormat: Text.PlainText
        color: Theme.text
        font.pixelSize: badge.pixelSize
    }
}
