import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import Example 1.0

Window {
    width: 480
    height: 400
    visible: true
    title: qsTr("Report")

    LinkReport {
        id: report
        // The user has agreed to replace the report of that name.
        onReportOverwriteAccepted: save(true)
        onReportGenerated: saved.text = qsTr("Saved %1").arg(filename)
    }
    Rectangle {
        anchors.fill: parent
        color: ControlsStyle.background
    }
    Column {
        x: 40
        y: 20
        width: 400
        spacing: 14

        ItemEntry { width: parent.width; item: report.settings.reportName }
        ItemEntry { width: parent.width; item: report.settings.reportFormat }
        Button {
            id: button
            text: qsTr("Save in %1").arg(report.saveLocation)
            onClicked: report.save()
            contentItem: Text {
                text: button.text
                textFormat: Text.PlainText
                color: ControlsStyle.text
                font.pixelSize: ControlsStyle.bodyText
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
        }
        Text {
            id: saved
            textFormat: Text.PlainText
            color: ControlsStyle.text
        }
    }
    // Asks before a report is replaced, and says what went wrong.
    NotificationDialog { }
    Picture { }
    // With "--save" on the command line, the report is saved in all formats at once.
    Component.onCompleted: {
        if (!Qt.application.arguments.includes("--save"))
            return
        report.settings.reportFormat.value = report.settings.reportFormat.enums.REPORT_FORMAT_ALL
        Qt.callLater(() => Qt.exit(report.save(true) ? 0 : 1))
    }
}
