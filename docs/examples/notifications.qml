import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// Notifications and questions about files:
//     uiutils-qml docs/examples/notifications.qml
Rectangle {
    id: page

    readonly property string report: "/cust/public/reports/lindhof-17.html"

    width: 1024
    height: 600
    color: ControlsStyle.background

    // An error is shown beside an open question.
    FileUtils {
        id: messages
    }
    FileUtils {
        id: questions
        onAccepted: answer.text = "Yes: " + notification.longLabel + ", " + notification.value("step")
        onRejected: answer.text = "No: " + notification.longLabel + ", " + notification.value("step")
    }

    RowLayout {
        anchors { fill: parent; margins: ControlsStyle.margin }
        spacing: ControlsStyle.margin

        ColumnLayout {
            Layout.alignment: Qt.AlignTop
            Layout.preferredWidth: 2
            Layout.fillWidth: true
            spacing: ControlsStyle.touchGap

            TouchButton {
                Layout.fillWidth: true
                text: "Overwrite a file"
                onClicked: questions.sendNotificationOverwriteRequest(page.report, { step: "save" })
            }
            TouchButton {
                Layout.fillWidth: true
                text: "Delete two files"
                onClicked: questions.sendNotificationDeleteRequest(page.report + "\n" + page.report, { step: "list" })
            }
            TouchButton {
                Layout.fillWidth: true
                text: "The drive is full"
                onClicked: messages.sendNotificationDriveFull("/mnt/usb")
            }
            TouchButton {
                Layout.fillWidth: true
                text: "A file cannot be read"
                onClicked: messages.sendNotificationReadError(page.report)
            }
            TouchButton {
                Layout.fillWidth: true
                text: "A file of 10 petabytes"
                onClicked: messages.checkDriveSpaceForFile(1e16, "/")
            }
            BodyText {
                id: answer
                Layout.fillWidth: true
            }
        }
        NotificationTray {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 3
        }
    }
    NotificationDialog {}

    Component.onCompleted: {
        messages.sendNotificationDriveFull("/mnt/usb")
        messages.sendNotificationReadError(page.report)
        while (Notifications.currentDialog)
            Notifications.accept()
        questions.sendNotificationDeleteRequest(page.report, { step: "start" })
    }
}
