import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import UiUtils.Demo 1.0

// Content that scrolls if it does not fit. The control with the keyboard focus is scrolled into view.
Flickable {
    id: view

    // Space above and below a control that is scrolled into view.
    property real room: 2 * Theme.touch
    readonly property Item focused: Window.activeFocusItem
    readonly property bool holding: focused !== null && focused.pressed === true

    function isInside(item) {
        for (; item; item = item.parent) {
            if (item === contentItem)
                return true
        }
        return false
    }

    // What a finger presses stays under it until the release.
    function isTapped(item) {
        return item.focusReason === Qt.MouseFocusReason && typeof item.pressed === "boolean"
    }

    function reveal(item) {
        const top = item.mapToItem(contentItem, 0, 0).y
        const highest = top + item.height + room - height
        contentY = Math.max(0, Math.min(Math.max(contentY, highest), top - room, contentHeight - height))
    }

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    // Always visible, because an edge between two controls would hide that there are more.
    ScrollBar.vertical: ScrollBar { policy: view.contentHeight > view.height ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff }
    onFocusedChanged: {
        if (isInside(focused) && !isTapped(focused))
            reveal(focused)
    }
    onHoldingChanged: {
        if (!holding && isInside(focused))
            reveal(focused)
    }
}
