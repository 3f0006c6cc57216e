import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

/// The user's notifications, newest first, each with a button that removes it.
FocusScope {
    id: tray

    /// Number of entries.
    readonly property int count: Notifications.count

    implicitWidth: 480
    implicitHeight: column.implicitHeight

    function dismissCurrent() {
        // The view follows its model with a delay.
        list.forceLayout()
        Notifications.remove(list.currentIndex)
    }

    ColumnLayout {
        id: column
        anchors.fill: parent
        spacing: ControlsStyle.gap

        RowLayout {
            Layout.fillWidth: true

            Text {
                Layout.fillWidth: true
                text: tray.count > 0 ? qsTr("Notifications (%1)").arg(tray.count) : qsTr("Notifications")
                textFormat: Text.PlainText
                elide: Text.ElideRight
                color: ControlsStyle.text
                font { pixelSize: ControlsStyle.headingText; bold: true }
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            EntryButton {
                objectName: "clearButton"
                // Keeps its place, so that the list does not move up.
                opacity: enabled ? 1 : 0
                enabled: tray.count > 0
                text: qsTr("Clear all")
                onClicked: Notifications.clear()
            }
        }

        ListView {
            id: list
            objectName: "trayList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            implicitHeight: Math.max(2 * ControlsStyle.touch, contentHeight)
            focus: true
            clip: true
            model: Notifications
            spacing: ControlsStyle.gap
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0
            ScrollBar.vertical: ScrollBar { id: bar }
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Notifications")
            Keys.onDeletePressed: tray.dismissCurrent()
            // New entries are added at the top, where a user at the top sees them.
            onCountChanged: {
                if (atYBeginning)
                    Qt.callLater(positionViewAtBeginning)
                if (!activeFocus)
                    currentIndex = 0
            }

            delegate: Rectangle {
                id: entry

                width: list.width - (bar.size < 1 ? bar.width + 2 : 0)
                height: Math.max(ControlsStyle.touch, texts.implicitHeight) + 2 * ControlsStyle.gap
                radius: ControlsStyle.radius
                color: ControlsStyle.field
                border {
                    width: list.activeFocus && ListView.isCurrentItem ? 3 : 1
                    color: list.activeFocus && ListView.isCurrentItem ? ControlsStyle.focus : ControlsStyle.border
                }
                Accessible.role: Accessible.ListItem
                Accessible.name: mark.word + ": " + model.longLabel
                Accessible.description: model.msg

                NotificationMark {
                    id: mark
                    objectName: "mark"
                    anchors { left: parent.left; leftMargin: ControlsStyle.margin; top: parent.top; topMargin: ControlsStyle.margin }
                    kind: model.kind
                }
                Column {
                    id: texts
                    anchors { left: mark.right; right: dismissButton.left; margins: ControlsStyle.margin; verticalCenter: parent.verticalCenter }
                    spacing: 2

                    Item {
                        width: parent.width
                        height: title.implicitHeight

                        Text {
                            id: title
                            anchors { left: parent.left; right: time.left; rightMargin: ControlsStyle.gap }
                            text: model.longLabel
                            textFormat: Text.PlainText
                            elide: Text.ElideRight
                            color: ControlsStyle.text
                            font { pixelSize: ControlsStyle.bodyText; bold: true }
                        }
                        Text {
                            id: time
                            anchors { right: parent.right; baseline: title.baseline }
                            text: model.time.toLocaleString(Qt.locale(), Locale.ShortFormat)
                            textFormat: Text.PlainText
                            color: ControlsStyle.mutedText
                            font.pixelSize: ControlsStyle.smallText
                        }
                    }
                    Text {
                        width: parent.width
                        visible: text !== ""
                        text: model.msg
                        textFormat: Text.PlainText
                        wrapMode: Text.Wrap
                        // A longer text would push all others out of view.
                        maximumLineCount: 6
                        elide: Text.ElideRight
                        color: ControlsStyle.text
                        font.pixelSize: ControlsStyle.bodyText
                    }
                }
                EntryButton {
                    id: dismissButton
                    objectName: "dismissButton"
                    anchors { right: parent.right; rightMargin: 6; verticalCenter: parent.verticalCenter }
                    text: "\u00d7"
                    font.pixelSize: ControlsStyle.padText
                    focusPolicy: Qt.NoFocus
                    Accessible.name: qsTr("Dismiss %1").arg(model.longLabel)
                    onClicked: Notifications.remove(model.index)
                }
            }

            Text {
                anchors { fill: parent; margins: ControlsStyle.margin }
                visible: tray.count === 0
                text: qsTr("No notifications")
                textFormat: Text.PlainText
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                color: ControlsStyle.mutedText
                font.pixelSize: ControlsStyle.bodyText
            }
        }
    }
}
