import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import UiUtils.Controls 1.0

/// A dialog in the centre of its window, over everything. When it closes, the previous item gets the focus back.
Popup {
    id: dialog

    readonly property Item overlay: Overlay.overlay

    // An open dialog that is not visible still blocks the items below it.
    property bool isInSight: true

    property Item interrupted: null

    function focusOwner() {
        return overlay ? overlay.Window.activeFocusItem : null
    }

    // Popups do this only for windows of one kind.
    function giveFocusBack() {
        const owner = focusOwner()
        const isFree = owner === null || owner === overlay.Window.contentItem
        if (isFree && interrupted !== null && interrupted.enabled)
            interrupted.forceActiveFocus()
        interrupted = null
    }

    onAboutToShow: interrupted = focusOwner()
    onClosed: giveFocusBack()

    parent: overlay
    anchors.centerIn: parent
    modal: true
    focus: true
    closePolicy: Popup.NoAutoClose
    padding: 20
    width: overlay ? Math.min(560, overlay.width - 2 * ControlsStyle.margin) : 560
    opacity: isInSight ? 1 : 0
    background: Rectangle {
        radius: ControlsStyle.radius + 4
        color: ControlsStyle.background
        border { width: 1; color: ControlsStyle.border }
    }
    Overlay.modal: Rectangle { color: dialog.isInSight ? "#80000000" : "transparent" }
}
