import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
import QtQuick.Window 2.15
import UiUtils.Controls 1.0

/// A column that scrolls where it does not fit. What has the keyboard focus stays in sight, also above an on-screen
/// keyboard.
Flickable {
    id: view

    /// The distance of the contents from the edges.
    property real padding: 0
    /// Whether the contents may be higher than the area; otherwise they fill it.
    property bool scrolls: true
    default property alias content: column.data

    readonly property Item focused: Window.activeFocusItem
    readonly property bool holding: focused !== null && focused.pressed === true
    // How much of the area the on-screen keyboard covers.
    readonly property real covered: {
        const keyboard = Qt.inputMethod.keyboardRectangle
        if (!Qt.inputMethod.visible || keyboard.height === 0)
            return 0
        return Math.max(0, Math.min(height, view.mapToItem(null, 0, height).y - keyboard.y))
    }

    /// Scrolls an item of the contents into sight.
    function reveal(item) {
        const room = ControlsStyle.touch
        const top = item.mapToItem(contentItem, 0, 0).y
        const lowest = top + item.height + room - (height - covered)
        contentY = Math.max(0, Math.min(Math.max(contentY, lowest), top - room, contentHeight + bottomMargin - height))
    }

    function isInside(item) {
        for (; item; item = item.parent) {
            if (item === contentItem)
                return true
        }
        return false
    }

    // What a finger presses stays under it until the release.
    function follow() {
        if (!holding && isInside(focused) && !(focused.focusReason === Qt.MouseFocusReason && typeof focused.pressed === "boolean"))
            reveal(focused)
    }

    implicitHeight: scrolls ? contentHeight : 0
    contentWidth: width
    contentHeight: scrolls ? column.height + 2 * padding : height
    bottomMargin: covered
    interactive: contentHeight + bottomMargin > height
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    T.ScrollBar.vertical: ScrollMark {}
    onFocusedChanged: follow()
    onHoldingChanged: follow()
    onCoveredChanged: follow()

    ColumnLayout {
        id: column
        x: view.padding
        y: view.padding
        width: view.width - 2 * view.padding
        spacing: ControlsStyle.margin

        // A height that is bound to the implicit one would make the layout arrange itself within its own change.
        Binding on height {
            when: !view.scrolls
            value: view.height - 2 * view.padding
        }
    }
}
