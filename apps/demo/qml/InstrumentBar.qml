import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// The states of the instrument. Each has its place whether there is something to show or not, so that nothing moves.
StatusBar {
    id: bar

    property Session session
    readonly property bool hasUnit: typeof unit_res_batteryLevel !== "undefined"
    readonly property bool isLow: hasUnit && unit_res_batteryLevel.value <= 20 && !unit_res_charging.value

    objectName: "statusBar"

    StatusItem {
        objectName: "jobItem"
        iconName: "jobs"
        name: qsTr("Job")
        text: bar.session.hasJob ? bar.session.jobId : qsTr("No job")
        onClicked: bar.session.pageWanted("jobs")
    }
    items: [
        StatusItem {
            objectName: "userItem"
            iconName: "user"
            name: qsTr("User")
            text: bar.session.user
            onClicked: bar.session.pageWanted("people")
        },
        StatusItem {
            objectName: "usbItem"
            iconName: "usb"
            name: bar.session.hasDrive ? qsTr("USB drive") : qsTr("No USB drive")
            dimmed: !bar.session.hasDrive
            onClicked: bar.session.pageWanted("files")
        },
        StatusItem {
            objectName: "linkItem"
            readonly property bool isUp: bar.hasUnit && unit_res_linkUp.value === true
            visible: bar.hasUnit
            iconName: "link"
            name: qsTr("Link")
            text: !isUp ? qsTr("Down") : unit_res_linkSpeed.value >= 1000 ? qsTr("%1 G").arg(unit_res_linkSpeed.value / 1000)
                                                                          : qsTr("%1 M").arg(unit_res_linkSpeed.value)
            status: isUp ? Status.None : Status.Marginal
            onClicked: bar.session.pageWanted("settings")
        },
        StatusItem {
            objectName: "batteryItem"
            visible: bar.hasUnit
            iconName: "battery"
            name: bar.hasUnit && unit_res_charging.value ? qsTr("Battery, charging") : qsTr("Battery")
            text: bar.hasUnit ? qsTr("%1 %").arg(unit_res_batteryLevel.value) : ""
            status: bar.isLow ? Status.Marginal : Status.None
            onClicked: bar.session.pageWanted("settings")
        },
        StatusItem {
            objectName: "bellItem"
            iconName: "bell"
            name: qsTr("Notifications")
            text: Notifications.count
            onClicked: bar.session.pageWanted("notifications")
        }
    ]
}
