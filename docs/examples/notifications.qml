import QtQuick 2.15
import QtQuick.Controls 2.15
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

    component Choice: Button {
        id: choice
        width: parent.width
        height: ControlsStyle.touch
        font.pixelSize: ControlsStyle.bodyText
        contentItem: Text {
            text: choice.text
            textFormat: Text.PlainText
            font: choice.font
            color: ControlsStyle.text
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }

    // An error is shown beside an open question.
    FileUtils {
        id: messages
    }
    FileUtils {
        id: questions
        onAccepted: answer.text = "Yes: " + notification.longLabel + ", " + notification.value("step")
        onRejected: answer.text = "No: " + notification.longLabel + ", " + notification.value("step")
    }

    Column {
        anchors { left: parent.left; top: parent.top; margins: 24 }
        width: 380
        spacing: ControlsStyle.gap

        Choice { text: "Overwrite a file"; onClicked: questions.sendNotificationOverwriteRequest(page.report, { step: "save" }) }
        Choice { text: "Delete two files"; onClicked: questions.sendNotificationDeleteRequest(page.report + "\n" + page.report, { step: "list" }) }
        Choice { text: "The drive is full"; onClicked: messages.sendNotificationDriveFull("/mnt/usb") }
        Choice { text: "A file cannot be read"; onClicked: messages.sendNotificationReadError(page.report) }
        Choice { text: "A file of 10 petabytes"; onClicked: messages.checkDriveSpaceForFile(1e16, "/") }
        Text {
            id: answer
            textFormat: Text.PlainText
            width: parent.width
            wrapMode: Text.Wrap
            color: ControlsStyle.text
            font.pixelSize: ControlsStyle.bodyText
        }
    }
    NotificationTray {
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom; margins: 24 }
        width: 520
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
