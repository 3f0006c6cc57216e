import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0
import "placing.js" as Placing

// The open choices of a box: below or above it, never over it.
T.Popup {
    id: list

    property T.ComboBox box: null

    // Rows that are not in sight have not been made.
    readonly property real wanted: Math.max(rows.contentHeight, rows.count * ControlsStyle.mm(11))
    readonly property Item page: T.Overlay.overlay
    readonly property var place: {
        if (!page || !box)
            return { y: 0, height: 0 }
        const edge = ControlsStyle.gap
        const field = box.mapToItem(page, 0, 0, box.width, box.height)
        return Placing.placeList(field, wanted + 2 * padding, Qt.rect(edge, edge, page.width - 2 * edge, page.height - 2 * edge), edge / 2)
    }

    // The box may have moved since.
    onAboutToShow: {
        Placing.reveal(box, 0, page.height)
        const there = box
        box = null
        box = there
    }

    onOpened: rows.forceLayout()

    y: place.y - (page && box ? box.mapToItem(page, 0, 0).y : 0)
    width: box ? box.width : 0
    height: place.height
    padding: ControlsStyle.line
    background: Rectangle {
        radius: ControlsStyle.radius
        color: ControlsStyle.field
        border { width: 2 * ControlsStyle.line; color: ControlsStyle.border }
    }

    contentItem: ListView {
        id: rows
        // A popup does not inherit it from the page.
        LayoutMirroring.enabled: ControlsStyle.mirrored
        LayoutMirroring.childrenInherit: true
        clip: true
        implicitHeight: contentHeight
        model: list.box ? list.box.delegateModel : null
        currentIndex: list.box ? list.box.highlightedIndex : -1
        highlightMoveDuration: 0
        boundsBehavior: Flickable.StopAtBounds
        T.ScrollBar.vertical: ScrollMark {}
    }
}
