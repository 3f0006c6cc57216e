import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// A result as text, and as a bar between its limits in the colour of its quality.
Column {
    id: meter

    property KivData item
    readonly property real share: (item.value - item.minRange) / (item.maxRange - item.minRange)
    readonly property color verdict: item.qualityCode === Status.Fail ? ControlsStyle.fail
                                   : item.qualityCode === Status.Marginal ? ControlsStyle.warning : ControlsStyle.pass

    spacing: ControlsStyle.gap
    opacity: item.isReady ? 1 : 0.4

    // Texts of services are plain text: as markup they could make the unit send requests.
    Text {
        text: meter.item.label + ": " + meter.item.valueString
        textFormat: Text.PlainText
        color: ControlsStyle.text
        font.pixelSize: ControlsStyle.headingText
    }
    Rectangle {
        width: meter.width
        height: 20
        color: ControlsStyle.field
        Rectangle {
            width: parent.width * Math.max(0, Math.min(1, meter.share))
            height: parent.height
            color: meter.verdict
        }
    }
    Text {
        text: meter.item.rangeDescription
        textFormat: Text.PlainText
        color: ControlsStyle.mutedText
        font.pixelSize: ControlsStyle.smallText
    }
}
