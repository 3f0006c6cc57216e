import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// What the authors of pages rely on: pages in a stack, tabs, search, and a banner that moves nothing.
Item {
    id: root

    // Pages that were made and deleted, by their titles.
    property var made: []
    property var gone: []

    width: 800
    height: 480

    Component {
        id: stackComponent
        PageStack { width: 800; height: 480; initialPage: firstPage }
    }
    Component {
        id: programComponent
        FocusScope {
            property int count: 0
            property alias stack: stack
            Keys.onEscapePressed: ++count
            PageStack { id: stack; anchors.fill: parent; initialPage: firstPage }
        }
    }
    Component {
        id: firstPage
        KitPage {
            title: "First"
            property alias second: second
            Component.onCompleted: root.made.push(title)
            ListRow { objectName: "one"; title: "One" }
            ListRow { id: second; title: "Two"; onClicked: stack.push(secondPage, { title: "Second" }) }
        }
    }
    Component {
        id: secondPage
        KitPage {
            property int count: 0
            Component.onCompleted: root.made.push(title)
            Component.onDestruction: root.gone.push(title)
            NumberEntry { objectName: "entry"; label: "Number"; value: 4 }
        }
    }
    Component {
        id: passingPage
        KitPage {
            title: "Passing"
            Component.onDestruction: root.gone.push(title)
        }
    }
    Component {
        id: problemComponent
        Column {
            property alias problem: problem
            width: 300
            InlineProblem { id: problem; width: parent.width; keepsRoom: true }
        }
    }
    Component {
        id: servedPage
        KitPage {
            title: "Served"
            service: "entry"
            actions: IconButton { iconName: "more"; name: "More" }
            ItemEntry { objectName: "below"; item: entry_cfg_name }
        }
    }
    Component {
        id: tabsComponent
        TouchTabs { model: ["One", { text: "Two", icon: "home", marked: true }, "Three"] }
    }
    Component {
        id: searchComponent
        Item {
            property int count: 0
            property alias search: search
            Keys.onEscapePressed: ++count
            SearchField { id: search; width: 300 }
        }
    }

    EntryTestCase {
        name: "Kit"

        function init() {
            driver.reset()
            root.made = []
            root.gone = []
        }

        function test_backLeadsToTheSamePlace() {
            const stack = make(stackComponent)
            const first = stack.currentPage
            compare(root.made, ["First"])
            verify(!stack.pop() && !first.hasBack)
            first.second.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Return)
            compare([stack.depth, stack.currentPage.title, first.visible], [2, "Second", false])
            verify(stack.currentPage.activeFocus && stack.currentPage.hasBack)
            // An edit is reverted first; the page is left with the next Escape.
            const entry = findChild(stack.currentPage, "entry")
            type(entry, "7")
            keyClick(Qt.Key_Escape)
            compare([fieldOf(entry).text, stack.depth], ["4", 2])
            keyClick(Qt.Key_Escape)
            compare([stack.depth, stack.currentPage === first, first.visible], [1, true, true])
            verify(first.second.activeFocus)
            tryCompare(root, "gone", ["Second"])
            compare(root.made.length, 2)
        }

        function test_escapeAtTheBottomIsLeftToTheProgram() {
            const around = make(programComponent)
            const stack = around.stack
            stack.push(secondPage)
            stack.currentPage.forceActiveFocus()
            keyClick(Qt.Key_Escape)
            compare([stack.depth, around.count], [1, 0])
            keyClick(Qt.Key_Escape)
            compare([stack.depth, around.count], [1, 1])
        }

        function test_keptPages() {
            const stack = make(stackComponent)
            stack.keep(secondPage)
            const kept = stack.push(secondPage, { title: "Kept" })
            kept.count = 3
            stack.push(passingPage)
            stack.home()
            // What is not kept is deleted now.
            tryCompare(root, "gone", ["Passing"])
            compare([stack.depth, kept.visible], [1, false])
            compare(stack.open(secondPage, { title: "Again" }), kept)
            compare([stack.depth, kept.count, kept.title, kept.visible], [1, 3, "Again", true])
            stack.push(firstPage)
            // It is in the stack already: back to it, and no page is there twice.
            compare(stack.push(secondPage), kept)
            compare(stack.depth, 1)
            stack.home()
            compare([stack.currentPage.title, stack.depth, root.made.length, root.gone], ["First", 1, 2, ["Passing"]])
        }

        function test_pagesThatCannotBeMade() {
            const stack = make(stackComponent)
            compare(stack.push(Qt.resolvedUrl("missing.qml")), null)
            verify(driver.takeWarnings()[0].includes("missing.qml"))
            compare([stack.depth, stack.currentPage.title], [1, "First"])
            verify(stack.currentPage.visible)
        }

        function test_bannerMovesNothing() {
            const stack = make(stackComponent)
            const page = stack.push(servedPage)
            const banner = findChild(page, "pageBanner")
            const places = () => ["below", "pageHeader", "backButton"].map(name => findChild(page, name)).map(item => page.mapFromItem(item, 0, 0, item.width, item.height))
            waitForRendering(page)
            const before = places()
            verify(!banner.isAway && banner.opacity === 0)
            driver.setReachable(false, "entry")
            verify(banner.isAway && banner.opacity === 1)
            compare(places(), before)
            // It covers the title, and neither the contents nor the way back.
            const shown = page.mapFromItem(banner, 0, 0, banner.width, banner.height)
            verify(shown.y + shown.height <= before[0].y && shown.x >= before[2].x + before[2].width)
            driver.setReachable(true, "entry")
            verify(!banner.isAway)
            compare(places(), before)
            page.service = "never published"
            verify(banner.isAway)
        }

        function test_tabs() {
            const tabs = make(tabsComponent, { width: 600 })
            compare([tabs.count, tabs.itemAt(0).width, tabs.itemAt(1).y], [3, 200, 0])
            tap(tabs.itemAt(2))
            compare(tabs.currentIndex, 2)
            tabs.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Left)
            compare(tabs.currentIndex, 1)
            compare([1, 0].map(index => tabs.itemAt(index).Accessible.description !== ""), [true, false])
        }

        function test_search() {
            const around = make(searchComponent)
            const search = around.search
            const field = findChild(search, "searchField")
            const width = field.width
            search.forceActiveFocus()
            keyClick("a")
            compare([search.text, field.width], ["a", width])
            tap(findChild(search, "clearButton"))
            compare([search.text, field.activeFocus], ["", true])
            keyClick("b")
            keyClick(Qt.Key_Escape)
            compare([search.text, around.count], ["", 0])
            keyClick(Qt.Key_Escape)
            compare(around.count, 1)
        }

        function test_problemMovesNothing() {
            const place = make(problemComponent, { width: 200 })
            const [empty, low] = [place.height, place.problem.height]
            for (const text of ["Too long", "\u9577\u3059\u304e\u307e\u3059", "\u0637\u0648\u064a\u0644 \u062c\u062f\u064b\u0627"]) {
                place.problem.text = text
                compare(place.height, empty)
            }
            place.problem.lines = 2
            verify(place.problem.height > low)
            const two = place.problem.height
            place.problem.text = "The drive is full. Delete files, or save elsewhere."
            verify(findWords(place.problem).lineCount === 2)
            compare(place.problem.height, two)
        }
        function findWords(item) {
            return item.lineCount !== undefined ? item : Array.from(item.children).reduce((found, child) => found || findWords(child), null)
        }

        function test_textsThatDoNotFit() {
            const button = createTemporaryQmlObject("import UiUtils.Controls 1.0; TouchButton { iconName: 'save' }", root)
            compare(button.height, ControlsStyle.touch)
            button.text = "Messwerte und Bericht auf den USB-Stick speichern"
            verify(button.width > 3 * ControlsStyle.touch && button.height === ControlsStyle.touch)
            button.width = 2 * ControlsStyle.touch
            tryVerify(() => button.height > 2 * ControlsStyle.touch)
        }
    }
}
