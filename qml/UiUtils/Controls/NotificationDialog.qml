import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils 1.0
import UiUtils.Controls 1.0

/// The open dialog of the notifications, one at a time. A window needs one of these, anywhere on its page.
ModalDialog {
    id: dialog

    /// The notification that is shown; null without one.
    readonly property KIVNotification notification: Notifications.currentDialog

    /// A dialog accepts no answer for this time after it has opened, in milliseconds: the tap or key may have been
    /// meant for what was there before.
    property int graceTime: 300

    function answer(isAccepted) {
        if (grace.running)
            return
        if (isAccepted)
            Notifications.accept()
        else
            Notifications.reject()
    }

    onNotificationChanged: {
        if (notification !== null && graceTime > 0)
            grace.restart()
    }
    Component.onCompleted: notificationChanged()

    objectName: "notificationDialog"
    // A page that is being created has no window yet.
    visible: notification !== null && overlay !== null

    contentItem: Column {
        // A popup does not inherit it from the page.
        LayoutMirroring.enabled: ControlsStyle.mirrored
        LayoutMirroring.childrenInherit: true
        // Each dialog has buttons of its own: a press that began on those of the previous one ends with them.
        Repeater {
            model: dialog.notification !== null ? [dialog.notification] : []

            delegate: FocusScope {
                id: content

                readonly property int kind: modelData ? modelData.kind : KIVNotification.Notice
                readonly property bool isRequest: kind === KIVNotification.Request
                readonly property string title: modelData ? modelData.longLabel : ""
                readonly property string msg: modelData ? modelData.msg : ""
                readonly property string details: value("details", "")

                // What is given with a notification is there before the dialog opens, and stays.
                function value(key, otherwise) {
                    const given = modelData ? modelData.value(key) : undefined
                    return given === undefined || given === "" ? otherwise : String(given)
                }

                width: parent ? parent.width : 0
                height: column.implicitHeight
                focus: true
                Accessible.role: Accessible.AlertMessage
                Accessible.name: mark.word + ": " + title
                Accessible.description: msgText.text
                Keys.onEscapePressed: {
                    if (!event.isAutoRepeat)
                        dialog.answer(false)
                }
                Keys.onUpPressed: scrolled.scroll(-1)
                Keys.onDownPressed: scrolled.scroll(1)
                // Questions are about overwriting and deleting: a stray key must not say yes.
                Component.onCompleted: (isRequest ? rejectButton : acceptButton).forceActiveFocus(dialog.focusReason)

                // Not a layout: its height would follow the width of wrapped texts within one change, in an endless
                // circle.
                Column {
                    id: column
                    width: parent.width
                    spacing: ControlsStyle.margin

                    Item {
                        width: parent.width
                        height: Math.max(mark.height, titleText.implicitHeight)

                        NotificationMark {
                            id: mark
                            objectName: "mark"
                            anchors.left: parent.left
                            kind: content.kind
                        }
                        Text {
                            id: titleText
                            objectName: "dialogTitle"
                            anchors { left: mark.right; leftMargin: ControlsStyle.margin; right: parent.right; verticalCenter: parent.verticalCenter }
                            text: content.title
                            textFormat: Text.PlainText
                            wrapMode: Text.Wrap
                            maximumLineCount: 2
                            elide: Text.ElideRight
                            color: ControlsStyle.text
                            font { pixelSize: ControlsStyle.headingText; weight: Font.DemiBold }
                        }
                    }
                    Flickable {
                        id: scrolled

                        readonly property bool isLong: contentHeight > height

                        function scroll(direction) {
                            const end = Math.max(0, contentHeight - height)
                            contentY = Math.max(0, Math.min(contentY + direction * ControlsStyle.touch, end))
                        }

                        objectName: "scrolled"
                        width: parent.width
                        height: Math.min(contentHeight, (dialog.overlay ? dialog.overlay.height / 2 : ControlsStyle.mm(45)))
                        contentHeight: msgText.implicitHeight
                        clip: true
                        boundsBehavior: Flickable.StopAtBounds
                        T.ScrollBar.vertical: ScrollMark {}

                        Text {
                            id: msgText
                            objectName: "dialogText"
                            x: ControlsStyle.mirrored ? ControlsStyle.margin : 0
                            width: scrolled.width - ControlsStyle.margin
                            text: content.details === "" ? content.msg : content.msg + "\n\n" + content.details
                            textFormat: Text.PlainText
                            wrapMode: Text.Wrap
                            color: ControlsStyle.text
                            font.pixelSize: ControlsStyle.bodyText
                        }
                    }
                    Item {
                        width: parent.width
                        height: buttons.height

                        Text {
                            objectName: "waitingText"
                            anchors { left: parent.left; right: buttons.left; rightMargin: ControlsStyle.gap; verticalCenter: parent.verticalCenter }
                            text: Notifications.waitingDialogs > 0 ? qsTr("%1 more").arg(Notifications.waitingDialogs) : ""
                            textFormat: Text.PlainText
                            elide: Text.ElideRight
                            color: ControlsStyle.mutedText
                            font.pixelSize: ControlsStyle.smallText
                        }
                        Row {
                            id: buttons
                            anchors.right: parent.right
                            spacing: ControlsStyle.margin

                            readonly property real least: ControlsStyle.mm(22)

                            TouchButton {
                                id: rejectButton
                                objectName: "rejectButton"
                                width: Math.max(buttons.least, implicitWidth)
                                visible: content.isRequest
                                text: content.value("rejectText", qsTr("No"))
                                KeyNavigation.right: acceptButton
                                onClicked: dialog.answer(false)
                            }
                            TouchButton {
                                id: acceptButton
                                objectName: "acceptButton"
                                width: Math.max(buttons.least, implicitWidth)
                                text: content.value("acceptText", content.isRequest ? qsTr("Yes") : qsTr("OK"))
                                filled: true
                                onClicked: dialog.answer(true)
                            }
                        }
                    }
                }
            }
        }
    }

    Timer {
        id: grace
        interval: dialog.graceTime
    }
}
