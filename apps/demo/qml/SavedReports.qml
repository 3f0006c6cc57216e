import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import UiUtils.Demo 1.0

// The reports in a report controller's folder, newest first.
ColumnLayout {
    id: saved

    property LoopbackReport report
    readonly property alias list: list

    // "34.5 kB"; decimal, as drives are sold.
    function sizeText(bytes) {
        const units = [qsTr("B"), qsTr("kB"), qsTr("MB"), qsTr("GB")]
        let unit = 0
        for (; bytes >= 999.5 && unit < units.length - 1; ++unit)
            bytes /= 1000
        const decimals = unit > 0 && bytes < 99.95 ? 1 : 0
        return qsTr("%1 %2").arg(Number(bytes).toLocaleString(Qt.locale(), "f", decimals)).arg(units[unit])
    }

    spacing: Theme.gap

    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.margin

        Text {
            text: list.count > 0 ? qsTr("Saved reports (%1)").arg(list.count) : qsTr("Saved reports")
            color: Theme.text
            font { pixelSize: Theme.headingText; bold: true }
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Text {
            Layout.fillWidth: true
            text: saved.report.saveLocation
            textFormat: Text.PlainText
            color: Theme.mutedText
            font.pixelSize: Theme.smallText
            horizontalAlignment: Text.AlignRight
            elide: Text.ElideMiddle
        }
    }
    ListView {
        id: list
        objectName: "reportList"
        Layout.fillWidth: true
        Layout.fillHeight: true
        clip: true
        spacing: 4
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        model: saved.report.reportFiles
        // News come in at the top.
        onModelChanged: {
            currentIndex = 0
            positionViewAtBeginning()
        }
        ScrollBar.vertical: ScrollBar { id: bar }
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Saved reports")

        delegate: Rectangle {
            id: row

            readonly property bool isCurrent: list.activeFocus && ListView.isCurrentItem

            width: list.width - (bar.size < 1 ? bar.width + 2 : 0)
            height: 38
            radius: Theme.radius
            color: Theme.background
            border { width: isCurrent ? 3 : 0; color: Theme.focus }
            Accessible.role: Accessible.ListItem
            Accessible.name: modelData.name + ", " + modelData.format
            Accessible.description: sizeText.text + ", " + timeText.text

            RowLayout {
                anchors { fill: parent; leftMargin: Theme.gap; rightMargin: Theme.gap }
                spacing: Theme.gap

                Text {
                    Layout.preferredWidth: 48
                    text: modelData.format
                    color: Theme.primary
                    font { pixelSize: Theme.smallText; bold: true }
                }
                Text {
                    Layout.fillWidth: true
                    text: modelData.name
                    textFormat: Text.PlainText
                    color: Theme.text
                    font.pixelSize: Theme.smallText + 1
                    // The ends of a name tell it from its neighbours.
                    elide: Text.ElideMiddle
                }
                Text {
                    visible: modelData.compressed
                    text: "gz"
                    Accessible.name: qsTr("compressed")
                    color: Theme.mutedText
                    font.pixelSize: Theme.smallText
                }
                Text {
                    id: sizeText
                    Layout.minimumWidth: 64
                    text: saved.sizeText(modelData.size)
                    color: Theme.mutedText
                    font.pixelSize: Theme.smallText
                    horizontalAlignment: Text.AlignRight
                }
                Text {
                    id: timeText
                    text: modelData.time.toLocaleString(Qt.locale(), Locale.ShortFormat)
                    color: Theme.mutedText
                    font.pixelSize: Theme.smallText
                    horizontalAlignment: Text.AlignRight
                }
            }
        }

        EmptyNote {
            anchors { fill: parent; margins: Theme.margin }
            visible: list.count === 0
            text: qsTr("Nothing is saved yet.")
        }
    }
}
