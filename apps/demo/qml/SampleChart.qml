import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Demo 1.0

// The samples as bars from left to right, with space for all that will follow, and a line at the median.
Item {
    id: chart

    property SampleModel quantity
    property int slots: 20
    readonly property real scaleEnd: roundedUp(quantity.maximum)

    // The next number of a ladder that suits an axis.
    function roundedUp(value) {
        if (value <= 0)
            return 1
        const power = Math.pow(10, Math.floor(Math.log(value) / Math.LN10))
        const steps = [1, 1.5, 2, 3, 4, 5, 6, 8, 10]
        return power * steps.find(step => step * power >= value * 0.9999)
    }

    Column {
        id: axis
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        // The end of the scale is a measured value: 100,000 Mbit/s and more are normal on a loopback.
        width: Math.max(56, endText.implicitWidth + 6)

        Text {
            id: endText
            width: parent.width - 6
            horizontalAlignment: Text.AlignRight
            text: chart.quantity.count > 0 ? chart.quantity.numberText(chart.scaleEnd) : ""
            textFormat: Text.PlainText
            color: Theme.mutedText
            font.pixelSize: Theme.smallText
        }
    }
    Text {
        anchors { right: plot.left; rightMargin: 6; bottom: plot.bottom }
        text: "0"
        textFormat: Text.PlainText
        color: Theme.mutedText
        font.pixelSize: Theme.smallText
    }
    Rectangle {
        id: plot
        anchors { left: axis.right; right: parent.right; top: parent.top; bottom: parent.bottom }
        color: Theme.background
        clip: true

        Repeater {
            model: chart.quantity

            Rectangle {
                readonly property real slotWidth: plot.width / Math.max(1, chart.slots)
                x: index * slotWidth
                width: slotWidth - (slotWidth > 6 ? 2 : slotWidth > 3 ? 1 : 0)
                height: Math.max(1, plot.height * model.value / chart.scaleEnd)
                y: plot.height - height
                color: Theme.statusColor(model.status)

                // Distinguishes a failed sample from a marginal one without colour.
                Rectangle {
                    visible: model.status === Status.Fail
                    width: parent.width
                    height: Math.min(5, parent.height)
                    color: Theme.text
                }
            }
        }
        Rectangle {
            visible: chart.quantity.count > 1
            y: plot.height * (1 - chart.quantity.median / chart.scaleEnd) - 1
            width: plot.width
            height: 2
            color: Theme.text
        }
    }
}
