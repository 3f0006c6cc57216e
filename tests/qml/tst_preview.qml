import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Test 1.0

// A report before it is saved.
Item {
    id: root

    width: 700
    height: 600

    Component {
        id: pageComponent
        Item {
            property alias report: report
            property alias dialog: dialog

            anchors.fill: parent
            InteractiveReport { id: report }
            PreviewDialog {
                id: dialog
                report: report
            }
        }
    }
    EntryTestCase {
        name: "Preview"
        when: windowShown

        function make(rows) {
            const page = createTemporaryObject(pageComponent, root)
            page.report.templatePath = driver.makeDocument(rows)
            return page
        }
        function pagesOf(page) { return findChild(page.dialog.contentItem, "previewPages") }
        function headingOf(page) { return findChild(page.dialog.contentItem, "previewHeading").text }

        function test_pagesComeIntoSight() {
            const page = make(500)
            page.dialog.show()
            tryVerify(() => page.dialog.preview.pageCount > 5)
            const pages = pagesOf(page), count = page.dialog.preview.pageCount
            compare(pages.count, count)
            compare(headingOf(page), "Page 1 of " + count)
            // Only some pages exist, and they show something.
            tryVerify(() => pages.itemAtIndex(0) !== null)
            verify(pages.itemAtIndex(count - 1) === null)
            verify(driver.shows(findChild(pages.itemAtIndex(0), "previewPage"), page.dialog.preview, 0))

            keyClick(Qt.Key_End)
            tryVerify(() => pages.itemAtIndex(count - 1) !== null)
            compare(headingOf(page), "Page " + count + " of " + count)
            verify(driver.shows(findChild(pages.itemAtIndex(count - 1), "previewPage"), page.dialog.preview, count - 1))
            keyClick(Qt.Key_Home)
            tryCompare(pages, "page", 0)
            const width = pages.itemAtIndex(0).children[0].width
            keyClick(Qt.Key_Plus)
            verify(Math.abs(pages.itemAtIndex(0).children[0].width - width * 1.25) < 2)
            compare(pages.page, 0)
            keyClick(Qt.Key_Escape)
            tryVerify(() => !page.dialog.opened)
            compare(page.dialog.preview.pageCount, 0)
            compare(driver.takeWarnings(), [])
        }

        function test_pinch() {
            const page = make(100)
            page.dialog.show()
            const pages = pagesOf(page)
            tryVerify(() => page.dialog.opened && pages.itemAtIndex(0) !== null)
            waitForRendering(pages)
            const touch = touchEvent(pages), at = apart => [pages.width / 2 + apart, 200]
            touch.press(0, pages, ...at(-40)).commit()
            touch.stationary(0).press(1, pages, ...at(40)).commit()
            for (let apart = 45; apart <= 120; apart += 5)
                touch.move(0, pages, ...at(-apart)).move(1, pages, ...at(apart)).commit()
            touch.release(0, pages, ...at(-120)).release(1, pages, ...at(120)).commit()
            verify(pages.zoom > 1.3 && pages.zoom < 4)
            compare(pages.page, 0)
            page.dialog.close()
        }

        // A report that is replaced while its pages are being made, by a longer and a shorter one, and one that is given up.
        function test_replaced() {
            const page = make(4000), preview = page.dialog.preview
            let changes = 0
            preview.pageCountChanged.connect(() => ++changes)
            preview.show()
            verify(preview.busy)
            page.report.templatePath = driver.makeDocument(10)
            preview.show()
            tryCompare(preview, "pageCount", 1)
            verify(!preview.busy)
            compare(changes, 1)
            page.report.templatePath = driver.makeDocument(4000)
            preview.show()
            preview.clear()
            // Another preview of the same pages, begun later, is done: this one would be, too.
            const other = make(4000).dialog.preview
            other.show()
            tryCompare(other, "busy", false)
            verify(other.pageCount > 0)
            compare(preview.pageCount, 0)
            verify(!preview.busy)
        }

        function test_nothingToShow() {
            const page = make(1), preview = page.dialog.preview
            page.dialog.report = null
            page.dialog.show()
            compare(preview.pageCount, 0)
            compare(headingOf(page), "There are no pages")
            page.dialog.document = createTemporaryQmlObject("import UiUtils 1.0; ReportTemplate {}", root)
            page.dialog.show()
            tryCompare(preview, "pageCount", 1)
            compare(driver.takeWarnings(), [])
        }
    }
}
