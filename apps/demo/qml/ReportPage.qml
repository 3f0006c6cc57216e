import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import UiUtils.Demo 1.0

FocusScope {
    id: page

    property LoopbackMeasurement measurement
    property ReportSaver saver
    readonly property bool hasResults: measurement.state === LoopbackMeasurement.Finished
    // The files of the last save, to tell them from earlier ones.
    property bool wasSaved: false

    // Gives the reason when the report was not saved, and an empty text when it was.
    function save() {
        builder.build(titleField.text)
        const flags = { 16: "pass", 32: "marginal", 64: "fail" }
        wasSaved = saver.save(builder.report, nameField.text, { [flags[measurement.status]]: true })
        return wasSaved ? "" : saver.errorText
    }

    // "loopback_20260131-142500": a name of its own for each run.
    function proposedName(startTime) {
        return "loopback_" + startTime.substring(0, 19).replace(/[-:]/g, "").replace("T", "-")
    }

    ReportBuilder {
        id: builder
        measurement: page.measurement
    }

    Connections {
        target: page.measurement

        function onFinished() {
            nameField.text = page.proposedName(page.measurement.startTime)
            page.wasSaved = false
        }
    }

    RowLayout {
        anchors { fill: parent; margins: Theme.margin }
        spacing: Theme.margin

        Card {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 2

            ColumnLayout {
                anchors { fill: parent; margins: Theme.margin }
                spacing: Theme.margin

                Text {
                    text: qsTr("Save a report")
                    color: Theme.text
                    font { pixelSize: Theme.headingText; bold: true }
                }
                LabelledField {
                    id: titleField
                    Layout.fillWidth: true
                    label: qsTr("Title on the report")
                    text: qsTr("TCP loopback test")
                    onAccepted: saveButton.save()
                }
                LabelledField {
                    id: nameField
                    Layout.fillWidth: true
                    label: qsTr("File name")
                    text: "loopback"
                    onAccepted: saveButton.save()
                }
                ActionButton {
                    id: saveButton

                    function save() {
                        if (enabled)
                            page.save()
                    }

                    Layout.fillWidth: true
                    focus: true
                    enabled: page.hasResults
                    text: qsTr("Save")
                    onClicked: save()
                }
                Text {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    text: {
                        if (!page.hasResults)
                            return qsTr("A report needs a finished measurement. Start one on the page Measure.")
                        if (page.saver.errorText)
                            return page.saver.errorText
                        return page.wasSaved ? qsTr("The report is saved.")
                                             : qsTr("A web page, an XML and a JSON file are written. Files of the same "
                                                    + "name are replaced.")
                    }
                    color: page.hasResults && page.saver.errorText ? Theme.fail : Theme.mutedText
                    font.pixelSize: Theme.bodyText
                    wrapMode: Text.Wrap
                    elide: Text.ElideRight
                    Accessible.role: Accessible.AlertMessage
                    Accessible.name: text
                }
            }
        }
        Card {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 3
            border { width: files.activeFocus ? 3 : 1; color: files.activeFocus ? Theme.focus : Theme.border }

            ColumnLayout {
                anchors { fill: parent; margins: Theme.margin }
                spacing: Theme.gap

                Text {
                    text: qsTr("Saved files")
                    color: Theme.text
                    font { pixelSize: Theme.headingText; bold: true }
                }
                ListView {
                    id: files
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    clip: true
                    spacing: Theme.gap
                    activeFocusOnTab: true
                    boundsBehavior: Flickable.StopAtBounds
                    model: page.saver.files
                    onCountChanged: positionViewAtEnd()
                    Keys.onDownPressed: flick(0, -600)
                    Keys.onUpPressed: flick(0, 600)
                    ScrollBar.vertical: ScrollBar { policy: ScrollBar.AsNeeded }

                    delegate: Rectangle {
                        readonly property int nameStart: modelData.lastIndexOf("/") + 1

                        width: files.width
                        height: path.implicitHeight + 2 * Theme.gap
                        radius: Theme.radius
                        color: Theme.background

                        Column {
                            id: path
                            anchors {
                                left: parent.left
                                right: parent.right
                                verticalCenter: parent.verticalCenter
                                margins: Theme.margin
                            }
                            spacing: 2

                            Text {
                                width: parent.width
                                text: modelData.substring(nameStart)
                                textFormat: Text.PlainText
                                color: Theme.text
                                font { pixelSize: Theme.bodyText; bold: true }
                                wrapMode: Text.Wrap
                            }
                            Text {
                                width: parent.width
                                text: modelData.substring(0, nameStart)
                                textFormat: Text.PlainText
                                color: Theme.mutedText
                                font.pixelSize: Theme.smallText
                                wrapMode: Text.Wrap
                            }
                        }
                    }

                    EmptyNote {
                        anchors { fill: parent; margins: Theme.margin }
                        visible: files.count === 0
                        text: qsTr("Nothing is saved yet. Reports will be written to\n%1").arg(page.saver.folder)
                        wrapMode: Text.Wrap
                    }
                }
            }
        }
    }
}
