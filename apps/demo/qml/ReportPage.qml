import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Demo 1.0

// Names, saves and lists the reports of the runs. What goes wrong is told in dialogs.
FocusScope {
    id: page

    property LoopbackMeasurement measurement
    readonly property alias report: report
    readonly property bool hasResults: measurement.state === LoopbackMeasurement.Finished
    readonly property var titleItem: report.getSetting("reportTitle")
    readonly property var nameItem: report.getSetting("reportName")

    // False when nothing was saved: the user is asked or told why, or the page says what is missing.
    function save() {
        return hasResults && titleEntry.commit() && nameEntry.commit() && report.save()
    }

    LoopbackReport {
        id: report
        measurement: page.measurement
        tag: "loopback"
        onContentWanted: builder.build()
        onReportOverwriteAccepted: save(true)
    }
    ReportBuilder {
        id: builder
        measurement: page.measurement
        report: page.report.content
        title: page.report.title
    }

    RowLayout {
        anchors { fill: parent; margins: Theme.margin }
        spacing: Theme.margin

        Card {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 9

            ColumnLayout {
                anchors { fill: parent; margins: Theme.margin }
                spacing: Theme.gap

                Text {
                    text: qsTr("Save a report")
                    color: Theme.text
                    font { pixelSize: Theme.headingText; bold: true }
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                TextEntry {
                    id: titleEntry
                    objectName: "titleEntry"
                    Layout.fillWidth: true
                    item: page.titleItem
                    rangeText: ""
                }
                FileNameEntry {
                    id: nameEntry
                    objectName: "nameEntry"
                    Layout.fillWidth: true
                    item: page.nameItem
                    // An empty one stands for this.
                    placeholderText: page.hasResults ? report.proposedFileName() : ""
                }
                RowLayout {
                    Layout.fillWidth: true
                    spacing: Theme.margin

                    ChoiceEntry {
                        objectName: "formatEntry"
                        Layout.fillWidth: true
                        item: report.getSetting("reportFormat")
                    }
                    SwitchEntry {
                        objectName: "compressionEntry"
                        Layout.fillWidth: true
                        item: report.getSetting("reportCompression")
                    }
                }
                ActionButton {
                    objectName: "saveButton"
                    Layout.fillWidth: true
                    focus: true
                    enabled: page.hasResults && page.titleItem.valueOk && page.nameItem.valueOk
                    text: qsTr("Save")
                    onClicked: page.save()
                }
                Text {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    text: page.hasResults ? "" : report.cannotGenerateReportMessage()
                    color: Theme.mutedText
                    font.pixelSize: Theme.smallText
                    wrapMode: Text.Wrap
                    elide: Text.ElideRight
                    Accessible.role: Accessible.AlertMessage
                    Accessible.name: text
                }
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 16
            spacing: Theme.margin

            Card {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredHeight: 8

                SavedReports {
                    anchors { fill: parent; margins: Theme.margin }
                    report: page.report
                }
            }
            Card {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredHeight: 5

                NotificationTray {
                    // Its heading has a button's height.
                    anchors { fill: parent; margins: Theme.margin; topMargin: 2 }
                    activeFocusOnTab: true
                }
            }
        }
    }
}
