import QtQuick 2.15
import UiUtils.Demo 1.0

// A small number with a title.
Column {
    property alias name: nameText.text
    property alias value: valueText.text

    Text {
        id: nameText
        textFormat: Text.PlainText
        color: Theme.mutedText
        font.pixelSize: Theme.smallText
    }
    Text {
        id: valueText
        textFormat: Text.PlainText
        color: Theme.text
        font.pixelSize: Theme.bodyText
    }
}
