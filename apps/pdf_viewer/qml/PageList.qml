import QtQuick 2.15
import QtQuick.Controls 2.15
import UiUtils.Viewer 1.0

// All pages, one below the other. Only the visible ones and their neighbours exist.
ListView {
    id: list

    enum Fit { FitNone, FitWidth, FitPage }

    property ViewerDocument document
    property int dotsPerInch: 85
    // The current page, counted from 0.
    property int page: 0
    // 1 shows pages in their natural size.
    property real zoom: 1
    property int fit: PageList.FitWidth

    readonly property real pixelsPerPoint: dotsPerInch / 72 * zoom
    // Everything that fits is within the bounds.
    readonly property real leastZoom: Math.min(0.25, zoomOf(PageList.FitPage))
    readonly property real mostZoom: Math.max(3, zoomOf(PageList.FitWidth))
    readonly property bool canZoomIn: zoom < mostZoom * 0.999
    readonly property bool canZoomOut: zoom > leastZoom * 1.001

    // Whether the program is changing the position; the current page is then the destination.
    property bool isPlacing: false

    function goTo(wanted) {
        const target = Math.max(0, Math.min(count - 1, wanted))
        isPlacing = true
        cancelFlick()
        page = target
        if (fit !== PageList.FitNone)
            zoom = zoomOf(fit)
        forceLayout()
        positionViewAtIndex(target, ListView.Beginning)
        contentX = (contentWidth - width) / 2
        isPlacing = false
    }

    function fitTo(wanted) {
        const before = page
        fit = wanted
        if (count > 0)
            goTo(before)
    }

    function zoomIn() { zoomAround(zoom * 1.25, width / 2, height / 2) }
    function zoomOut() { zoomAround(zoom / 1.25, width / 2, height / 2) }

    // Zooms so that the content at that point of the view stays there.
    function zoomAround(wanted, x, y) {
        const index = indexNear(contentY + y)
        const before = itemAtIndex(index)
        if (!before)
            return
        const across = (contentX + x) / contentWidth
        const down = (contentY + y - before.y) / before.height
        isPlacing = true
        cancelFlick()
        fit = PageList.FitNone
        zoom = Math.max(leastZoom, Math.min(mostZoom, wanted))
        forceLayout()
        positionViewAtIndex(index, ListView.Beginning)
        const after = itemAtIndex(index)
        contentY = inBounds(after.y + down * after.height - y, originY, contentHeight - height)
        contentX = inBounds(across * contentWidth - x, 0, contentWidth - width)
        isPlacing = false
    }

    // Scrolls by a part of the view.
    function scroll(screensAcross, screensDown) {
        cancelFlick()
        contentX = inBounds(contentX + screensAcross * width, 0, contentWidth - width)
        contentY = inBounds(contentY + screensDown * height, originY, contentHeight - height)
    }

    function inBounds(value, start, length) {
        return Math.max(start, Math.min(start + Math.max(0, length), value))
    }

    function zoomOf(wanted) {
        const size = document.pageSize(page)
        if (size.width <= 0 || width <= 0)
            return 1
        const natural = dotsPerInch / 72
        // A window may have no space for a page; pages of negative size would all be visible.
        const across = Math.max(1, width - 2 * Theme.margin) / (size.width * natural)
        const down = Math.max(1, height - Theme.gap) / (size.height * natural)
        return wanted === PageList.FitPage ? Math.min(across, down) : across
    }

    // Between two pages the upper one is current.
    function indexNear(y) {
        const index = indexAt(1, y)
        return index >= 0 ? index : page
    }

    model: document.pageCount
    spacing: 0
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    flickableDirection: Flickable.AutoFlickIfNeeded
    contentWidth: Math.max(width, document.widestPage * pixelsPerPoint + 2 * Theme.margin)
    // Neighbours are drawn before they become visible.
    cacheBuffer: Math.max(0, height)
    highlightMoveDuration: 0
    keyNavigationEnabled: false
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Pages")

    onContentYChanged: {
        if (!isPlacing && count > 0)
            page = indexNear(contentY + height / 2)
    }
    onWidthChanged: fitTo(fit)
    onHeightChanged: fitTo(fit)
    onCountChanged: fitTo(fit)

    ScrollBar.vertical: ScrollBar { policy: list.contentHeight > list.height ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff }
    ScrollBar.horizontal: ScrollBar {}

    delegate: Item {
        readonly property size points: list.document.pageSize(index)

        width: list.contentWidth
        height: points.height * list.pixelsPerPoint + Theme.gap

        Sheet {
            anchors.centerIn: parent
            width: Math.round(parent.points.width * list.pixelsPerPoint)
            height: Math.round(parent.points.height * list.pixelsPerPoint)
            document: list.document
            page: index
        }
    }
}
