import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Window 2.15
import UiUtils.Controls 1.0

/// A dialog in the centre of its window, over everything. When it closes, the previous item gets the focus back.
T.Popup {
    id: dialog

    readonly property Item overlay: T.Overlay.overlay

    // An open dialog that is not visible still blocks the items below it.
    property bool isInSight: true

    property Item interrupted: null
    // The focus is shown in the dialog, too, if the user saw it before.
    property int focusReason: Qt.OtherFocusReason

    function focusOwner() {
        return overlay ? overlay.Window.activeFocusItem : null
    }

    // Popups do this only for windows of one kind.
    function giveFocusBack() {
        const owner = focusOwner()
        const isFree = owner === null || owner === overlay.Window.contentItem
        if (isFree && interrupted !== null && interrupted.enabled)
            interrupted.forceActiveFocus(focusReason)
        interrupted = null
    }

    onAboutToShow: {
        interrupted = focusOwner()
        focusReason = interrupted !== null && ControlsStyle.isByKey(interrupted) ? Qt.TabFocusReason : Qt.OtherFocusReason
    }
    onClosed: giveFocusBack()

    parent: overlay
    anchors.centerIn: parent
    modal: true
    focus: true
    closePolicy: T.Popup.NoAutoClose
    padding: ControlsStyle.margin + ControlsStyle.gap
    width: overlay ? Math.min(ControlsStyle.mm(110), overlay.width - 2 * ControlsStyle.margin) : ControlsStyle.mm(110)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    opacity: isInSight ? 1 : 0
    background: Rectangle {
        radius: ControlsStyle.radius
        color: ControlsStyle.card
        border { width: ControlsStyle.line; color: ControlsStyle.border }
    }
    T.Overlay.modal: Rectangle { color: dialog.isInSight ? "#80000000" : "transparent" }
}
