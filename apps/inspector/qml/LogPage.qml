import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0
import UiUtils.Inspector 1.0

// What happened, the newest first.
ColumnLayout {
    id: page

    required property var log
    required property var recording
    signal chosen(string id)

    spacing: ControlsStyle.touchGap
    // Who never looks at changes pays for no recording.
    Component.onCompleted: recording.begin()

    RowLayout {
        Layout.fillWidth: true
        Layout.margins: ControlsStyle.gap
        Layout.bottomMargin: 0
        spacing: ControlsStyle.touchGap

        TouchButton {
            objectName: "pauseButton"
            iconName: page.log.paused ? "run" : "stop"
            text: page.log.paused ? qsTr("Go on") : qsTr("Pause")
            onClicked: page.log.paused = !page.log.paused
        }
        TouchButton {
            objectName: "clearLogButton"
            iconName: "delete"
            text: qsTr("Clear")
            enabled: page.log.count > 0
            onClicked: page.log.clear()
        }
        TouchButton {
            objectName: "recordButton"
            iconName: "save"
            text: qsTr("Save as recording")
            onClicked: page.recording.save()
        }
        Item { Layout.fillWidth: true }
    }
    LabelText {
        objectName: "recordingText"
        Layout.fillWidth: true
        Layout.leftMargin: ControlsStyle.margin
        Layout.rightMargin: ControlsStyle.margin
        visible: text !== ""
        text: page.recording.text
        wrapMode: Text.Wrap
    }
    LabelText {
        objectName: "logCounts"
        Layout.fillWidth: true
        Layout.leftMargin: ControlsStyle.margin
        Layout.rightMargin: ControlsStyle.margin
        text: [qsTr("Changes: %L1").arg(page.log.count),
               page.log.fallen > 0 ? qsTr("fallen out: %L1").arg(page.log.fallen) : "",
               page.log.missed > 0 ? qsTr("missed while paused: %L1").arg(page.log.missed) : ""].filter(part => part !== "").join(" \u00b7 ")
        wrapMode: Text.Wrap
    }
    ListArea {
        id: list
        objectName: "logList"
        Layout.fillWidth: true
        Layout.fillHeight: true
        name: qsTr("Changes")
        model: page.log
        reuseItems: true

        delegate: ListRow {
            required property string rowTime
            required property string rowId
            required property string rowName
            required property string rowKind
            required property string rowText

            title: rowName
            subtitle: rowTime + " \u00b7 " + rowKind
            value: rowText
            onClicked: page.chosen(rowId)
        }
        EmptyState {
            anchors { fill: parent; margins: ControlsStyle.margin }
            visible: list.count === 0
            iconName: "clock"
            title: qsTr("No changes yet")
            text: qsTr("What services report is shown as it comes.")
        }
    }
}
