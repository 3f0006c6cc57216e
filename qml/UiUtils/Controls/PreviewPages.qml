import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0
import UiUtils.Preview 1.0

/// The pages of a ReportPreview, one below the other, for touch and keyboard. Only those in sight are drawn.
ListView {
    id: list

    /// The pages that are shown, a ReportPreview.
    property var preview: null
    /// 1 shows pages as wide as the view.
    property real zoom: 1
    /// The least `zoom`.
    property real leastZoom: 0.25
    /// The greatest `zoom`.
    property real mostZoom: 4
    /// The page in the middle of the view, from 0; 0 also without pages.
    readonly property int page: Math.max(0, indexAt(1, contentY + height / 2))

    readonly property real pageWidth: Math.max(1, Math.round(zoom * (width - 2 * ControlsStyle.margin)))

    /// Zooms so that what is in the middle of the view stays there.
    function zoomTo(wanted) {
        const index = page
        const before = itemAtIndex(index)
        if (!before)
            return
        const across = (contentX + width / 2) / contentWidth
        const down = (contentY + height / 2 - before.y) / before.height
        cancelFlick()
        zoom = Math.max(leastZoom, Math.min(mostZoom, wanted))
        forceLayout()
        positionViewAtIndex(index, ListView.Beginning)
        const after = itemAtIndex(index)
        contentY = inBounds(after.y + down * after.height - height / 2, originY, contentHeight - height)
        contentX = inBounds(across * contentWidth - width / 2, 0, contentWidth - width)
    }

    /// Shows the page, from 0, at the top.
    function goTo(wanted) {
        cancelFlick()
        positionViewAtIndex(Math.max(0, Math.min(count - 1, wanted)), ListView.Beginning)
    }

    function scroll(screens) {
        cancelFlick()
        contentY = inBounds(contentY + screens * height, originY, contentHeight - height)
    }
    function inBounds(value, start, length) {
        return Math.max(start, Math.min(start + Math.max(0, length), value))
    }

    model: preview
    spacing: ControlsStyle.gap
    topMargin: ControlsStyle.gap
    bottomMargin: ControlsStyle.gap
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    flickableDirection: Flickable.AutoFlickIfNeeded
    contentWidth: Math.max(width, pageWidth + 2 * ControlsStyle.margin)
    // Neighbours are drawn before they come into sight.
    cacheBuffer: Math.max(0, height / 2)
    keyNavigationEnabled: false
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Pages")

    Keys.onPressed: {
        const deeds = {
            [Qt.Key_Up]: () => scroll(-0.1), [Qt.Key_Down]: () => scroll(0.1),
            [Qt.Key_PageUp]: () => scroll(-0.9), [Qt.Key_PageDown]: () => scroll(0.9),
            [Qt.Key_Home]: () => goTo(0), [Qt.Key_End]: () => goTo(count - 1),
            [Qt.Key_Plus]: () => zoomTo(zoom * 1.25), [Qt.Key_Minus]: () => zoomTo(zoom / 1.25)
        }
        event.accepted = event.key in deeds
        if (event.accepted)
            deeds[event.key]()
    }
    PinchHandler {
        id: pinch

        property real zoomBefore: 1

        target: null
        onActiveChanged: zoomBefore = list.zoom
        onActiveScaleChanged: {
            if (active)
                list.zoomTo(zoomBefore * activeScale)
        }
    }
    WheelHandler {
        acceptedModifiers: Qt.ControlModifier
        onWheel: list.zoomTo(list.zoom * Math.pow(1.25, event.angleDelta.y / 120))
    }

    T.ScrollBar.vertical: ScrollMark {}
    T.ScrollBar.horizontal: ScrollMark {}

    delegate: Item {
        width: list.contentWidth
        height: sheet.height

        Rectangle {
            id: sheet
            anchors.centerIn: parent
            width: list.pageWidth
            height: Math.round(width * pageHeight / pageWidth)
            color: "white"
            border { width: ControlsStyle.line; color: ControlsStyle.border }
            Accessible.role: Accessible.Graphic
            Accessible.name: qsTr("Page %1").arg(index + 1)

            PreviewPage {
                objectName: "previewPage"
                anchors { fill: parent; margins: 1 }
                preview: list.preview
                page: index
            }
        }
    }
}
