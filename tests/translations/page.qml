import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// Does what has to be told to users: saves a report, asks before it replaces it, refuses names and values.
Item {
    id: page

    width: 800
    height: 600

    function tell(what, words) { console.log(what + ": " + words) }

    function set(item, value) {
        item.value = value
        tell("refused", item.error)
        tell("range", item.rangeDescription)
    }

    function save(name) {
        report.settings.reportName.value = name
        tell("saved", report.save())
        const dialog = Notifications.currentDialog
        tell("dialog", dialog ? dialog.longLabel + " " + dialog.msg : "")
        Notifications.reject()
    }

    Report {
        id: report
        templatePath: "/document.json"
    }
    NotificationDialog {}
    NotificationTray { anchors.fill: parent }
    Component.onCompleted: {
        set(station_cfg_level_3, 11)
        set(station_cfg_title, "x")
        set(station_cfg_locked, 2)
        save("a/b")
        save("marked")
        save("marked")
        Qt.exit(0)
    }
}
