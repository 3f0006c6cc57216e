import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import UiUtils.Demo 1.0

// All samples of a quantity under their summary; scrolls by touch, wheel and arrow keys.
Card {
    id: table

    property SampleModel quantity

    function shown(value) {
        return quantity.count > 0 ? quantity.numberText(value) : "\u2013"
    }

    border { width: list.activeFocus ? 3 : 1; color: list.activeFocus ? Theme.focus : Theme.border }

    ColumnLayout {
        anchors { fill: parent; margins: Theme.margin }
        spacing: Theme.gap

        RowLayout {
            Layout.preferredHeight: 24

            Text {
                Layout.fillWidth: true
                text: qsTr("%1 in %2").arg(table.quantity.title).arg(table.quantity.unit)
                textFormat: Text.PlainText
                color: Theme.text
                font { pixelSize: Theme.headingText; bold: true }
            }
            StatusBadge {
                status: table.quantity.status
                word: table.quantity.statusText(table.quantity.status)
            }
        }
        RowLayout {
            Repeater {
                model: [
                    { name: qsTr("Minimum"), value: table.quantity.minimum },
                    { name: qsTr("Median"), value: table.quantity.median },
                    { name: qsTr("Maximum"), value: table.quantity.maximum },
                    { name: qsTr("Jitter"), value: table.quantity.jitter }
                ]

                SummaryFigure {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    name: modelData.name
                    value: table.shown(modelData.value)
                }
            }
        }
        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: 1
            color: Theme.border
        }
        ListView {
            id: list
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            activeFocusOnTab: true
            boundsBehavior: Flickable.StopAtBounds
            model: table.quantity
            Keys.onDownPressed: flick(0, -600)
            Keys.onUpPressed: flick(0, 600)
            Keys.onPressed: {
                if (event.key === Qt.Key_Home)
                    positionViewAtBeginning()
                else if (event.key === Qt.Key_End)
                    positionViewAtEnd()
                else
                    return
                event.accepted = true
            }
            // Always visible, because an edge between two rows would hide that there are more.
            ScrollBar.vertical: ScrollBar { policy: list.contentHeight > list.height ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff }

            delegate: Rectangle {
                width: list.width
                height: 40
                color: index % 2 === 0 ? Theme.background : Theme.card

                RowLayout {
                    anchors { fill: parent; leftMargin: Theme.gap; rightMargin: Theme.margin + 4 }

                    Text {
                        Layout.preferredWidth: 110
                        text: qsTr("Sample %1").arg(model.number)
                        textFormat: Text.PlainText
                        color: Theme.mutedText
                        font.pixelSize: Theme.bodyText
                    }
                    Text {
                        Layout.fillWidth: true
                        horizontalAlignment: Text.AlignRight
                        text: model.text
                        textFormat: Text.PlainText
                        color: Theme.text
                        font.pixelSize: Theme.bodyText
                    }
                    Item { Layout.preferredWidth: Theme.margin }
                    StatusBadge {
                        Layout.preferredWidth: 110
                        status: model.status
                        word: model.statusText
                    }
                }
            }

            EmptyNote {
                anchors { fill: parent; margins: Theme.margin }
                visible: list.count === 0
                text: qsTr("No samples yet. Start a measurement on the Measure page.")
            }
        }
    }
}
