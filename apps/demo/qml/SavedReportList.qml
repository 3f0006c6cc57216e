import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Demo 1.0

// The reports in a report controller's folder or on the USB drive, newest first, and the actions for the current one.
ColumnLayout {
    id: saved

    property LoopbackReport report
    property UsbStick stick
    // Which list is shown: the drive's while it is plugged in, or the unit's.
    property bool showsStick: false
    readonly property bool canChoose: stick !== null && stick.attached
    readonly property alias list: list
    // The folder of these reports, which may differ from the folder of the next save.
    readonly property string place: words.getSanitizedPathName(showsStick ? stick.mountPoint : reports.folder)
    // Null without a report.
    readonly property var current: list.currentItem ? list.currentItem.file : null
    // Other formats cannot be viewed on the instrument.
    readonly property bool canOpen: current !== null && current.viewable

    function open() {
        if (canOpen)
            reports.open(current.path)
    }
    function remove() {
        if (current !== null)
            reports.remove(current.path)
    }

    // "34.5 kB"; decimal, like the sizes of drives.
    function sizeText(bytes) {
        const units = [qsTr("B"), qsTr("kB"), qsTr("MB"), qsTr("GB")]
        let unit = 0
        for (; bytes >= 999.5 && unit < units.length - 1; ++unit)
            bytes /= 1000
        const decimals = unit > 0 && bytes < 99.95 ? 1 : 0
        return qsTr("%1 %2").arg(Number(bytes).toLocaleString(Qt.locale(), "f", decimals)).arg(units[unit])
    }

    spacing: Theme.gap

    FileUtils { id: words }
    SavedReports {
        id: reports
        report: saved.report
        drive: saved.showsStick ? SavedReports.Usb : SavedReports.Unit
        // The newest is at the top. Later, when the view has the new rows.
        onRowsInserted: (parent, first) => {
            if (first === 0)
                Qt.callLater(list.goToNewest)
        }
    }

    onCanChooseChanged: showsStick = showsStick && canChoose
    Connections {
        target: saved.report
        // A new report is shown after a save.
        function onFileWritten(path) { saved.showsStick = saved.canChoose && path.startsWith(saved.stick.mountPoint) }
    }

    GridLayout {
        Layout.fillWidth: true
        // Without a choice of lists there is space for the heading beside the buttons.
        columns: saved.canChoose ? 1 : 2
        columnSpacing: Theme.gap
        rowSpacing: 4

        GridLayout {
            Layout.fillWidth: true
            columns: saved.canChoose ? 2 : 1
            columnSpacing: Theme.gap
            rowSpacing: 0

            Text {
                Layout.fillWidth: !saved.canChoose
                text: list.count > 0 ? qsTr("Saved reports (%1)").arg(list.count) : qsTr("Saved reports")
                textFormat: Text.PlainText
                color: Theme.text
                font { pixelSize: Theme.headingText; bold: true }
                // Beside the buttons, even in the smallest window.
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: Theme.smallText
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Text {
                objectName: "reportPlace"
                Layout.fillWidth: true
                text: saved.place
                textFormat: Text.PlainText
                color: Theme.mutedText
                font.pixelSize: Theme.smallText
                horizontalAlignment: saved.canChoose ? Text.AlignRight : Text.AlignLeft
                elide: Text.ElideMiddle
            }
        }
        RowLayout {
            spacing: Theme.gap

            Rectangle {
                implicitWidth: places.implicitWidth
                implicitHeight: places.implicitHeight
                visible: saved.canChoose
                radius: Theme.radius
                color: Theme.background
                border { width: 1; color: Theme.border }

                Row {
                    id: places

                    SegmentButton {
                        objectName: "unitButton"
                        text: qsTr("Unit")
                        checked: !saved.showsStick
                        Accessible.name: qsTr("Reports on the unit")
                        onClicked: saved.showsStick = false
                    }
                    SegmentButton {
                        objectName: "usbButton"
                        text: qsTr("USB")
                        checked: saved.showsStick
                        Accessible.name: qsTr("Reports on the USB drive")
                        onClicked: saved.showsStick = true
                    }
                }
            }
            Item {
                Layout.fillWidth: true
                visible: saved.canChoose
            }
            ActionButton {
                objectName: "openButton"
                visible: saved.canOpen
                filled: false
                text: qsTr("Open")
                onClicked: saved.open()
            }
            ActionButton {
                objectName: "copyButton"
                visible: saved.current !== null && !saved.showsStick
                filled: false
                text: qsTr("To USB")
                Accessible.name: qsTr("Copy to the USB drive")
                onClicked: reports.copyToUsb(saved.current.path)
            }
            ActionButton {
                objectName: "deleteButton"
                visible: saved.current !== null
                filled: false
                text: qsTr("Delete")
                onClicked: saved.remove()
            }
        }
    }
    ListView {
        id: list
        objectName: "reportList"

        // A key that is held down triggers once.
        function pressBy(event, act) {
            if (!event.isAutoRepeat)
                act()
        }

        function goToNewest() {
            currentIndex = 0
        }

        Layout.fillWidth: true
        Layout.fillHeight: true
        clip: true
        spacing: 4
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        model: reports
        Keys.onReturnPressed: pressBy(event, saved.open)
        Keys.onEnterPressed: pressBy(event, saved.open)
        Keys.onDeletePressed: pressBy(event, saved.remove)
        // Always visible, because an edge between two rows would hide that there are more.
        ScrollBar.vertical: ScrollBar {
            id: bar
            policy: size < 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
        }
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Saved reports")

        delegate: Rectangle {
            id: row

            readonly property var file: model

            width: list.width - (bar.size < 1 ? bar.width + 2 : 0)
            height: Theme.touch - list.spacing
            radius: Theme.radius
            color: ListView.isCurrentItem ? Theme.selected : Theme.background
            border { width: list.activeFocus && ListView.isCurrentItem ? 3 : 0; color: Theme.focus }
            Accessible.role: Accessible.ListItem
            Accessible.name: model.name + ", " + model.format
            Accessible.description: details.text
            Accessible.selected: ListView.isCurrentItem

            MouseArea {
                anchors.fill: parent
                onClicked: {
                    list.currentIndex = index
                    list.forceActiveFocus()
                }
            }
            RowLayout {
                anchors { fill: parent; leftMargin: Theme.gap; rightMargin: Theme.gap }
                spacing: Theme.gap

                Text {
                    Layout.preferredWidth: 48
                    text: model.format
                    textFormat: Text.PlainText
                    color: Theme.primary
                    font { pixelSize: Theme.smallText; bold: true }
                }
                ColumnLayout {
                    Layout.fillWidth: true
                    spacing: 0

                    Text {
                        Layout.fillWidth: true
                        // A name may contain line feeds.
                        text: model.name.replace(/\s/g, " ")
                        textFormat: Text.PlainText
                        color: Theme.text
                        font.pixelSize: Theme.smallText + 1
                        // Similar names differ at their ends.
                        elide: Text.ElideMiddle
                    }
                    Text {
                        id: details
                        text: saved.sizeText(model.size) + ", "
                              + model.time.toLocaleString(Qt.locale(), Locale.ShortFormat)
                        textFormat: Text.PlainText
                        color: Theme.mutedText
                        font.pixelSize: Theme.smallText - 1
                    }
                }
                Text {
                    visible: model.compressed
                    text: "gz"
                    textFormat: Text.PlainText
                    Accessible.name: qsTr("compressed")
                    color: Theme.mutedText
                    font.pixelSize: Theme.smallText
                }
            }
        }

        EmptyNote {
            anchors { fill: parent; margins: Theme.margin }
            visible: list.count === 0
            text: saved.showsStick ? qsTr("There are no reports on the USB drive.")
                : saved.canChoose ? qsTr("There are no reports on the unit.") : qsTr("Nothing is saved yet.")
        }
    }
}
