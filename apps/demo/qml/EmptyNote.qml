import QtQuick 2.15
import UiUtils.Demo 1.0

// Stands where things will be, and says how they come there.
Text {
    textFormat: Text.PlainText
    color: Theme.mutedText
    font.pixelSize: Theme.bodyText
    wrapMode: Text.WordWrap
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
}
