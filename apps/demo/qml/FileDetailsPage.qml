import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// One saved report: its record, whether the cloud may take it, and what can be done with it.
KitPage {
    id: page

    property Session session
    property SavedReports files
    property string path
    // The row of the list; empty when the report is deleted.
    readonly property var file: rows.count > 0 ? rows.get(0) : ({})
    readonly property bool isThere: rows.count > 0
    readonly property var record: isThere ? files.record(path) : ({})

    title: isThere ? file.name : qsTr("Deleted")
    subtitle: isThere ? place.getSanitizedPathName(path) : ""
    footer: [
        TouchButton {
            objectName: "deleteButton"
            danger: true
            enabled: page.isThere
            iconName: "delete"
            text: qsTr("Delete")
            onClicked: page.files.remove(page.path)
        },
        Item { Layout.fillWidth: true },
        TouchButton {
            objectName: "copyButton"
            enabled: page.isThere && page.session.hasDrive && page.file.drive === SavedReports.Unit
            iconName: "usb"
            text: qsTr("Copy to USB")
            onClicked: page.files.copyToUsb(page.path)
        },
        TouchButton {
            objectName: "readButton"
            visible: page.isThere && page.file.readable === true
            iconName: "preview"
            text: qsTr("Read")
            onClicked: page.stack.push("ReadPage.qml", { title: page.title, text: page.files.readText(page.path) })
        },
        TouchButton {
            objectName: "openButton"
            filled: true
            enabled: page.isThere && page.file.viewable === true
            iconName: "open"
            text: qsTr("Open")
            onClicked: page.files.open(page.path)
        }
    ]
    onIsThereChanged: {
        if (!isThere && stack && stack.currentPage === page)
            stack.pop()
    }

    FileUtils { id: place }
    RowFilter {
        id: rows
        sourceModel: page.files
        role: "path"
        values: [page.path]
    }

    component Fact: ListRow {
        Layout.fillWidth: true
        visible: value !== ""
    }

    Fact { title: qsTr("Format"); value: page.file.compressed ? qsTr("%1, compressed").arg(page.file.format) : page.file.format || "" }
    Fact {
        title: qsTr("Saved")
        value: page.isThere ? page.file.time.toLocaleString(Qt.locale(), Locale.ShortFormat) : ""
    }
    Fact {
        title: qsTr("Size")
        value: page.isThere ? page.session.sizeText(page.file.size) : ""
    }
    ListRow {
        Layout.fillWidth: true
        title: qsTr("Sync")
        subtitle: page.file.synced === undefined ? qsTr("The list of reports that stay here cannot be used.")
                : page.file.synced ? qsTr("The cloud may take it.") : qsTr("It stays on the unit.")
        trailing: TouchButton {
            objectName: "syncButton"
            enabled: page.file.synced !== undefined
            iconName: "sync"
            text: page.file.synced ? qsTr("Keep here") : qsTr("Sync")
            onClicked: page.files.setSynced(page.path, !page.file.synced)
        }
    }
    Section {
        Layout.fillWidth: true
        visible: page.record.type !== undefined
        title: qsTr("Record")

        Repeater {
            model: {
                const info = page.record.info || {}
                return Object.keys(info).sort().map(key => ({ key: key, value: String(info[key]) }))
            }

            Fact { title: modelData.key; value: modelData.value }
        }
        Fact { title: qsTr("Type"); value: page.record.type || "" }
        Fact { title: qsTr("Time"); value: page.record.timeStamp || "" }
    }
}
