import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// Causes notifications: rejected values and a rejected name, a change that waits, a saved report, a question before it is replaced.
Item {
    function set(item, value) {
        item.value = value
        console.log(item.error, item.rangeDescription)
    }

    function save(name) {
        report.settings.reportName.value = name
        report.save()
        if (Notifications.currentDialog)
            console.log(Notifications.currentDialog.msg)
        Notifications.reject()
    }

    Report {
        id: report
        templatePath: "/document.json"
    }
    PendingChanges { id: pending }
    NotificationDialog {}
    NotificationTray { anchors.fill: parent }
    Component.onCompleted: {
        set(station_cfg_level_3, 11)
        set(station_cfg_title, "x")
        pending.enter(station_cfg_on, !station_cfg_on.value)
        pending.revertAll()
        save("a/b")
        save("marked")
        save("marked")
        Qt.exit(0)
    }
}
