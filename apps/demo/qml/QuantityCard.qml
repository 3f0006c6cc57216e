import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Plot 1.0
import UiUtils.Demo 1.0

// One quantity during a run: its median as a large figure with its verdict, its spread, and its curve with the limit.
Card {
    id: card

    property SampleModel quantity
    // Whether the limit is a maximum.
    property bool isMaximum: false

    function shown(value) {
        return quantity.count > 0 ? quantity.numberText(value) : "\u2013"
    }

    Layout.fillWidth: true
    Layout.fillHeight: true
    Layout.preferredWidth: 1
    padding: ControlsStyle.gap

    // One line of figures: the curve is what the page is for.
    RowLayout {
        Layout.fillWidth: true
        spacing: ControlsStyle.gap

        FigureText {
            text: card.shown(card.quantity.median)
            color: card.quantity.status === Status.None ? ControlsStyle.text : ControlsStyle.qualityColor(card.quantity.status)
            font.pixelSize: ControlsStyle.pt(20)
            Accessible.name: qsTr("%1, median: %2").arg(card.quantity.title).arg(card.quantity.text(card.quantity.median))
        }
        LabelText {
            Layout.alignment: Qt.AlignBottom
            Layout.bottomMargin: ControlsStyle.gap
            text: card.quantity.unit
        }
        ColumnLayout {
            spacing: 0

            BodyText {
                Layout.fillWidth: true
                text: card.quantity.title
                horizontalAlignment: Text.AlignRight
                font.weight: Font.DemiBold
            }
            StatusMark {
                Layout.alignment: Qt.AlignRight
                status: card.quantity.status
            }
        }
    }
    LabelText {
        Layout.fillWidth: true
        text: qsTr("%1 to %2, jitter %3").arg(card.shown(card.quantity.minimum)).arg(card.shown(card.quantity.maximum))
              .arg(card.shown(card.quantity.jitter))
        wrapMode: Text.Wrap
    }
    LivePlot {
        id: plot
        Layout.fillWidth: true
        Layout.fillHeight: true
        xLabel: qsTr("Sample")
        textSize: ControlsStyle.smallText
        legend: false
        emptyText: qsTr("No samples yet")
        colors {
            background: ControlsStyle.card
            plotArea: ControlsStyle.field
            text: ControlsStyle.text
            grid: ControlsStyle.grid
            minorGrid: ControlsStyle.grid
            cursor: ControlsStyle.primary
            marker: ControlsStyle.information
            limit: ControlsStyle.axis
            pass: ControlsStyle.pass
            marginal: ControlsStyle.warning
            fail: ControlsStyle.fail
            curves: ControlsStyle.curves
        }
        Accessible.role: Accessible.Chart
        Accessible.name: card.quantity.title
        Accessible.description: plot.accessibleText

        PlotCurve {
            name: card.quantity.title
            unit: card.quantity.unit
            model: card.quantity
            xRole: "number"
            yRole: "value"

            PlotLimit {
                upper: card.isMaximum ? card.quantity.limit : NaN
                lower: card.isMaximum ? NaN : card.quantity.limit
                label: card.quantity.limitText
            }
        }
    }
}
