import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Demo 1.0

// Names, saves and lists the reports of the runs. Errors are shown in dialogs.
FocusScope {
    id: page

    property LoopbackMeasurement measurement
    readonly property alias report: report
    readonly property alias stick: stick
    readonly property alias preview: preview
    readonly property bool hasResults: measurement.state === LoopbackMeasurement.Finished
    readonly property var titleItem: report.getSetting("reportTitle")
    readonly property var nameItem: report.getSetting("reportName")
    // The user's own services may lack it.
    readonly property var locationItem: typeof basemgr_cfg_saveLocation === "undefined" ? null : basemgr_cfg_saveLocation
    readonly property bool wantsUsb: locationItem !== null && location.served !== locationItem.enums.Internal
    // A base manager that has not noticed the removal still reports the drive, and a save there fails.
    readonly property bool missesStick: wantsUsb && !stick.attached && typeof basemgr_res_usbAttached !== "undefined"
                                        && basemgr_res_usbAttached.value === true
    readonly property bool savesOnUsb: wantsUsb && location.served === locationItem.enums.Usb && stick.attached

    // False when nothing was saved: a question or an error is open, or the page says what is missing.
    function save() {
        return hasResults && titleEntry.commit() && nameEntry.commit() && report.save()
    }

    function showPreview() {
        if (hasResults && titleEntry.commit())
            preview.show()
    }

    PreviewDialog {
        id: preview
        report: page.report
    }
    LoopbackReport {
        id: report
        measurement: page.measurement
        tag: "loopback"
        onContentWanted: builder.build()
        onReportOverwriteAccepted: save(true)
    }
    UsbStick { id: stick }
    // The service's value, which is decisive while the transaction of another page holds a different one.
    ItemEntry {
        id: location
        item: page.locationItem
    }
    ReportBuilder {
        id: builder
        measurement: page.measurement
        report: page.report.content
        title: page.report.title
    }

    RowLayout {
        anchors { fill: parent; margins: Theme.margin }
        spacing: Theme.margin

        Card {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 5

            ColumnLayout {
                id: form

                // So that everything fits the instrument's screen.
                readonly property int closeness: 6

                anchors { fill: parent; leftMargin: Theme.margin; rightMargin: Theme.margin; topMargin: Theme.gap; bottomMargin: Theme.gap }
                spacing: closeness

                RowLayout {
                    Layout.fillWidth: true
                    spacing: Theme.gap

                    Text {
                        text: qsTr("Save a report")
                        textFormat: Text.PlainText
                        color: Theme.text
                        font { pixelSize: Theme.headingText; bold: true }
                        Accessible.role: Accessible.Heading
                        Accessible.name: text
                    }
                    Text {
                        id: usage
                        objectName: "usage"

                        readonly property bool isOfStick: page.savesOnUsb
                        property real percentage

                        function refresh() {
                            percentage = isOfStick ? report.percentageFileSystemUsed(stick.mountPoint)
                                                   : report.percentageFileSystemUsed()
                        }

                        Layout.fillWidth: true
                        text: (isOfStick ? qsTr("USB %1 % full") : qsTr("Unit %1 % full")).arg(Math.round(percentage))
                        textFormat: Text.PlainText
                        color: Theme.mutedText
                        font.pixelSize: Theme.smallText
                        horizontalAlignment: Text.AlignRight
                        Component.onCompleted: refresh()
                        onIsOfStickChanged: refresh()

                        Connections {
                            target: report
                            function onReportFilesChanged() { usage.refresh() }
                        }
                    }
                }
                ScrollArea {
                    id: fields
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    // The scroll bar and the focus frames lie in the card's margin.
                    Layout.leftMargin: -Theme.gap
                    Layout.rightMargin: -Theme.gap
                    contentHeight: column.height
                    room: Theme.touch / 2

                    ColumnLayout {
                        id: column
                        x: Theme.gap
                        width: fields.width - 2 * Theme.gap
                        spacing: form.closeness

                        TextEntry {
                            id: titleEntry
                            objectName: "titleEntry"
                            Layout.fillWidth: true
                            item: page.titleItem
                            rangeText: ""
                        }
                        FileNameEntry {
                            id: nameEntry
                            objectName: "nameEntry"
                            Layout.fillWidth: true
                            item: page.nameItem
                            // The name that is used when the field is empty.
                            placeholderText: page.hasResults ? report.proposedFileName() : ""
                        }
                        RowLayout {
                            Layout.fillWidth: true
                            spacing: Theme.gap

                            ChoiceEntry {
                                objectName: "formatEntry"
                                Layout.fillWidth: page.locationItem === null
                                Layout.alignment: Qt.AlignTop
                                implicitWidth: 98
                                item: report.getSetting("reportFormat")
                            }
                            ChoiceEntry {
                                id: locationEntry
                                objectName: "locationEntry"
                                Layout.fillWidth: true
                                Layout.alignment: Qt.AlignTop
                                visible: page.locationItem !== null
                                item: page.locationItem
                                news: location.pending ? qsTr("Not applied yet: see Settings.") : ""
                                // Written at once, even while the settings page holds changes back.
                                storeWith: value => face.writeWith(() => {
                                    item.value = value
                                    item.apply()
                                })
                            }
                        }
                        RowLayout {
                            Layout.fillWidth: true
                            visible: stick.supported
                            spacing: Theme.gap

                            Text {
                                objectName: "stickState"
                                Layout.fillWidth: true
                                text: stick.attached ? qsTr("A USB drive is plugged in.")
                                    : page.missesStick ? qsTr("The USB drive was removed. Saving on it fails until it is back.")
                                    : page.wantsUsb ? qsTr("Without a USB drive reports are saved on the unit.")
                                    : qsTr("No USB drive is plugged in.")
                                textFormat: Text.PlainText
                                color: page.wantsUsb && !stick.attached ? ControlsStyle.news : Theme.mutedText
                                font.pixelSize: Theme.smallText
                                wrapMode: Text.Wrap
                                Accessible.role: Accessible.StaticText
                                Accessible.name: text
                            }
                            ActionButton {
                                objectName: "stickButton"
                                Layout.preferredWidth: 110
                                Layout.preferredHeight: Theme.touch
                                filled: false
                                text: stick.attached ? qsTr("Unplug") : qsTr("Plug in")
                                Accessible.description: qsTr("USB drive")
                                onClicked: stick.attached ? stick.pull() : stick.plug()
                            }
                        }
                        RowLayout {
                            Layout.fillWidth: true
                            spacing: Theme.gap

                            SwitchEntry {
                                objectName: "compressionEntry"
                                implicitWidth: 118
                                item: report.getSetting("reportCompression")
                            }
                            SwitchEntry {
                                objectName: "syncEntry"
                                Layout.fillWidth: true
                                item: report.getSetting("reportSync_SS")
                            }
                        }
                    }
                }
                Text {
                    Layout.fillWidth: true
                    visible: text
                    text: page.hasResults ? "" : report.cannotGenerateReportMessage()
                    textFormat: Text.PlainText
                    color: Theme.mutedText
                    font.pixelSize: Theme.smallText
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.AlertMessage
                    Accessible.name: text
                }
                RowLayout {
                    spacing: Theme.gap

                    ActionButton {
                        objectName: "previewButton"
                        Layout.preferredWidth: 110
                        filled: false
                        enabled: page.hasResults && page.titleItem.valueOk
                        text: qsTr("Preview")
                        onClicked: page.showPreview()
                    }
                    ActionButton {
                        objectName: "saveButton"
                        Layout.fillWidth: true
                        focus: true
                        enabled: page.hasResults && page.titleItem.valueOk && page.nameItem.valueOk
                        text: qsTr("Save")
                        onClicked: page.save()
                    }
                }
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 8
            spacing: Theme.margin

            Card {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredHeight: 8

                SavedReportList {
                    anchors { fill: parent; margins: Theme.margin }
                    report: page.report
                    stick: page.stick
                }
            }
            Card {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredHeight: 5

                NotificationTray {
                    // Its heading is as high as a button.
                    anchors { fill: parent; margins: Theme.margin; topMargin: 2 }
                    activeFocusOnTab: true
                }
            }
        }
    }
}
