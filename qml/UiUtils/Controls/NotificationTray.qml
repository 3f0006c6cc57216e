import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
import UiUtils 1.0
import UiUtils.Controls 1.0

/// The user's notifications, newest first, each with a button that removes it.
FocusScope {
    id: tray

    /// Number of entries.
    readonly property int count: Notifications.count
    /// Whether the tray has a heading. A page that is called so already needs none.
    property bool titled: true

    implicitWidth: ControlsStyle.mm(90)
    implicitHeight: column.implicitHeight

    function dismissCurrent() {
        // The view follows its model with a delay.
        list.forceLayout()
        Notifications.remove(list.currentIndex)
    }

    ColumnLayout {
        id: column
        anchors.fill: parent
        spacing: ControlsStyle.touchGap

        RowLayout {
            Layout.fillWidth: true
            spacing: ControlsStyle.touchGap

            HeadingText {
                Layout.fillWidth: true
                opacity: tray.titled ? 1 : 0
                Accessible.ignored: !tray.titled
                text: tray.count > 0 ? qsTr("Notifications (%1)").arg(tray.count) : qsTr("Notifications")
            }
            TouchButton {
                objectName: "clearButton"
                // Keeps its place, so that the list does not move up.
                opacity: enabled ? 1 : 0
                enabled: tray.count > 0
                quiet: true
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
            spacing: ControlsStyle.touchGap
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0
            T.ScrollBar.vertical: ScrollMark { id: bar }
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

                width: list.width - (bar.visible ? bar.width + ControlsStyle.gap : 0)
                height: Math.max(ControlsStyle.touch, texts.implicitHeight) + 2 * ControlsStyle.gap
                radius: ControlsStyle.radius
                color: ControlsStyle.card
                border { width: ControlsStyle.line; color: ControlsStyle.divider }
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
                    spacing: ControlsStyle.gap / 3

                    Item {
                        width: parent.width
                        height: title.implicitHeight

                        StyledText {
                            id: title
                            readonly property bool mayElide: true

                            anchors { left: parent.left; right: time.left; rightMargin: ControlsStyle.gap }
                            text: model.longLabel
                            elide: Text.ElideRight
                            font { pixelSize: ControlsStyle.bodyText; weight: Font.DemiBold }
                        }
                        StyledText {
                            id: time
                            anchors { right: parent.right; baseline: title.baseline }
                            text: model.time.toLocaleString(Qt.locale(), Locale.ShortFormat)
                            muted: true
                            font.pixelSize: ControlsStyle.smallText
                        }
                    }
                    StyledText {
                        readonly property bool mayElide: true

                        width: parent.width
                        visible: text !== ""
                        text: model.msg
                        wrapMode: Text.Wrap
                        // A longer text would push all others out of view.
                        maximumLineCount: 6
                        elide: Text.ElideRight
                        font.pixelSize: ControlsStyle.bodyText
                    }
                }
                IconButton {
                    id: dismissButton
                    objectName: "dismissButton"
                    anchors { right: parent.right; rightMargin: ControlsStyle.gap; verticalCenter: parent.verticalCenter }
                    iconName: "close"
                    focusPolicy: Qt.NoFocus
                    name: qsTr("Dismiss %1").arg(model.longLabel)
                    onClicked: Notifications.remove(model.index)
                }
                FocusFrame {
                    control: list
                    within: true
                    visible: list.activeFocus && entry.ListView.isCurrentItem
                }
            }

            StyledText {
                anchors { fill: parent; margins: ControlsStyle.margin }
                visible: tray.count === 0
                text: qsTr("No notifications")
                muted: true
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.pixelSize: ControlsStyle.bodyText
            }
        }
    }
}
