import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Demo 1.0

// One quantity during the measurement: its median as a large figure, its spread, its samples and its limit.
Card {
    id: card

    property SampleModel quantity
    property int slots: 20
    property alias steps: stepper.steps

    function shown(value) {
        return quantity.count > 0 ? quantity.numberText(value) : "\u2013"
    }

    ColumnLayout {
        anchors { fill: parent; margins: Theme.margin }
        spacing: Theme.gap

        RowLayout {
            Layout.preferredHeight: 24

            Text {
                Layout.fillWidth: true
                text: card.quantity.title
                textFormat: Text.PlainText
                color: Theme.text
                font { pixelSize: Theme.headingText; bold: true }
            }
            StatusBadge {
                status: card.quantity.status
                word: card.quantity.statusText(card.quantity.status)
            }
        }
        RowLayout {
            Layout.preferredHeight: 54
            spacing: 8

            Text {
                text: card.shown(card.quantity.median)
                textFormat: Text.PlainText
                color: Theme.primary
                font { pixelSize: Theme.figureText; bold: true }
            }
            Text {
                Layout.alignment: Qt.AlignBottom
                Layout.bottomMargin: 8
                Layout.fillWidth: true
                text: qsTr("%1 (median)").arg(card.quantity.unit)
                textFormat: Text.PlainText
                color: Theme.mutedText
                font.pixelSize: Theme.bodyText
            }
        }
        RowLayout {
            spacing: Theme.gap

            Repeater {
                model: [
                    { name: qsTr("Minimum"), value: card.quantity.minimum },
                    { name: qsTr("Maximum"), value: card.quantity.maximum },
                    { name: qsTr("Jitter"), value: card.quantity.jitter }
                ]

                SummaryFigure {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    name: modelData.name
                    value: card.shown(modelData.value)
                }
            }
        }
        SampleChart {
            Layout.fillWidth: true
            Layout.fillHeight: true
            quantity: card.quantity
            slots: card.slots
        }
        LimitStepper {
            id: stepper
            Layout.fillWidth: true
            quantity: card.quantity
        }
    }
}
