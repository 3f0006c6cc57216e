import QtQuick 2.15
import UiUtils.Demo 1.0

// Takes the place of missing content, and says how to get it.
Text {
    textFormat: Text.PlainText
    color: Theme.mutedText
    font.pixelSize: Theme.bodyText
    wrapMode: Text.WordWrap
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
}
