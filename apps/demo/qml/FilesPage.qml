import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Demo 1.0

// What is saved: reports on the unit and on the USB drive, and screenshots.
KitPage {
    id: page

    property Session session
    readonly property bool showsPictures: kind.currentIndex === 2
    readonly property bool canSwitch: session.hasDrive

    title: qsTr("Files")
    subtitle: showsPictures ? qsTr("%n screenshots", "", pictures.count)
            : kind.currentIndex === 1 ? qsTr("%n reports", "", reports.count)
            : qsTr("%1, %2 % of the drive in use").arg(qsTr("%n reports", "", reports.count)).arg(Math.round(page.session.used))
    onVisibleChanged: if (visible && session) session.look()
    Component.onCompleted: session.look()
    scrolls: false
    actions: SegmentedChoice {
        id: kind
        objectName: "filesKind"
        model: [{ label: qsTr("Unit"), value: 0 }, { label: qsTr("USB"), value: 1 }, { label: qsTr("Pictures"), value: 2 }]
        value: 0
        onCurrentIndexChanged: pictures.refresh()
    }

    SavedReports {
        id: reports
        report: page.session.report
        drive: kind.currentIndex === 1 ? SavedReports.Usb : SavedReports.Unit
    }
    PictureFiles { id: pictures }
    Connections {
        target: page.session.camera
        function onTaken() { pictures.refresh() }
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: ControlsStyle.touchGap

        SearchField {
            id: search
            objectName: "fileSearch"
            Layout.fillWidth: true
            placeholderText: qsTr("Name or format")
        }
        SegmentedChoice {
            id: order
            objectName: "fileOrder"
            enabled: !page.showsPictures
            model: [{ label: qsTr("Newest"), value: 0 }, { label: qsTr("Name"), value: 1 }, { label: qsTr("Size"), value: 2 }]
            value: 0
        }
    }
    ListArea {
        id: list
        objectName: "fileList"
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: !page.showsPictures
        name: page.title
        model: RowFilter {
            sourceModel: reports
            text: search.text
            textRoles: ["name", "format"]
            sortBy: ["time", "name", "size"][order.currentIndex]
            descending: order.currentIndex !== 1
        }
        delegate: ListRow {
            objectName: "report " + model.name
            iconName: "report"
            // A name may contain line feeds.
            title: model.name.replace(/\s/g, " ")
            subtitle: qsTr("%1, %2").arg(page.session.sizeText(model.size))
                                    .arg(page.session.timeText(model.time))
            value: model.compressed ? qsTr("%1, compressed").arg(model.format) : model.format
            chevron: true
            onClicked: page.stack.push("FileDetailsPage.qml", { session: page.session, files: reports, path: model.path })
        }

        EmptyState {
            anchors.fill: parent
            visible: list.count === 0
            iconName: kind.currentIndex === 1 ? "usb" : "files"
            title: search.text !== "" && reports.count > 0 ? qsTr("No report is found")
                 : kind.currentIndex === 1 && !page.session.hasDrive ? qsTr("There is no USB drive") : qsTr("Nothing is saved yet")
        }
    }
    ListArea {
        id: pictureList
        objectName: "pictureList"
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: page.showsPictures
        name: page.title
        model: RowFilter {
            sourceModel: pictures
            text: search.text
            textRoles: ["name"]
        }
        delegate: ListRow {
            iconName: "camera"
            title: model.name
            subtitle: page.session.timeText(model.time)
            chevron: true
            onClicked: page.stack.push("PicturePage.qml", { files: pictures, name: model.name, path: model.path, source: model.source })
        }

        EmptyState {
            anchors.fill: parent
            visible: pictureList.count === 0
            iconName: "camera"
            title: qsTr("There are no screenshots")
        }
    }
}
