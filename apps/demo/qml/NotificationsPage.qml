import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0

// What the unit has told the user.
KitPage {
    property Session session

    title: qsTr("Notifications")
    scrolls: false

    NotificationTray {
        objectName: "notificationTray"
        titled: false
        Layout.fillWidth: true
        Layout.fillHeight: true
        activeFocusOnTab: true
    }
}
