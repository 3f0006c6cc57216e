import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0
import UiUtils.Demo 1.0

// What comes over the pages: questions, the progress of a save, and the drawer of the desktop.
Item {
    id: overlays

    property Session session
    property QtObject inspector: null

    parent: T.Overlay.overlay
    anchors.fill: parent

    NotificationDialog {}
    SaveProgress { report: overlays.session.report }
    DeskDrawer {
        id: desk
        inspector: overlays.inspector
        onClosed: overlays.session.look()
    }
    ScreenKeyboard { objectName: "screenKeyboard" }

    // In the margin of the pages, where the user has no control.
    T.AbstractButton {
        objectName: "deskHandle"
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        width: ControlsStyle.gap
        height: ControlsStyle.touch
        focusPolicy: Qt.NoFocus
        Accessible.name: qsTr("Desk")
        onClicked: desk.open()

        background: Rectangle {
            color: ControlsStyle.notice
            border { width: ControlsStyle.line; color: ControlsStyle.news }
        }
    }
    Shortcut {
        context: Qt.ApplicationShortcut
        sequence: "Ctrl+D"
        onActivated: desk.visible ? desk.close() : desk.open()
    }
}
