import QtQuick 2.15
import QtTest 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// What waits in a transaction, as a user reviews it: by touch, by keys and by ear.
Item {
    id: root

    width: 800
    height: 600

    Component { id: viewComponent; PendingChangesView {} }
    Component { id: modelComponent; PendingChanges { manifests: [services.entry] } }

    EntryTestCase {
        name: "KitChanges"

        // The view over three changes.
        function review(width) {
            const changes = createTemporaryObject(modelComponent, root)
            for (const [item, value] of [[entry_cfg_count, 7], [entry_cfg_level, 55.5], [entry_cfg_dose, 1.5]])
                compare(changes.enter(item, value), "")
            compare(changes.count, 3)
            return make(viewComponent, { changes: changes, width: width, height: 500 })
        }

        function rows(view) {
            const list = findChild(view, "pendingList")
            list.forceLayout()
            const found = []
            for (let i = 0; i < list.count; ++i)
                found.push(list.itemAtIndex(i))
            return found
        }

        // A button of the overtaken count, when both have their places.
        function placed(view, name) {
            const left = findChild(view, "dismiss " + entry_cfg_count.label)
            const right = findChild(view, "setAgain " + entry_cfg_count.label)
            tryVerify(() => right.visible && left.x + left.width <= right.x)
            rows(view)
            waitForRendering(view)
            return name === "dismiss " ? left : right
        }

        function test_byTouch_data() {
            return [{ tag: "wide", width: 700 }, { tag: "narrow", width: 260 }]
        }
        function test_byTouch(row) {
            const view = review(row.width)
            const label = entry_cfg_level.label
            // Everything is within its row, and big enough.
            for (const each of rows(view)) {
                const button = findChild(each, "revert " + each.label)
                verify(button.height >= ControlsStyle.touch)
                const end = button.mapToItem(each, button.width, button.height)
                verify(end.x <= each.width && end.y <= each.height)
            }
            tap(findChild(view, "revert " + label))
            compare(rows(view).length, 2)
            compare(entry_cfg_level.value, driver.value(":config:entry:level:"))
            // The service's report is seen beside what was set, and may be replaced.
            driver.report(":config:entry:count:", 9)
            tap(placed(view, "setAgain "))
            compare(entry_cfg_count.value, 7)
            driver.report(":config:entry:count:", 4)
            tap(placed(view, "dismiss "))
            compare(rows(view).map(each => each.label), [entry_cfg_dose.label])
            view.changes.revertAll()
            compare(rows(view).length, 0)
        }

        function test_byKeys() {
            const view = review(700)
            waitForRendering(view)
            view.forceActiveFocus()
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Space)
            // The focus goes to the row that takes the place of the one that has gone.
            compare(rows(view).map(each => each.newText.split(" ")[0]).length, 2)
            compare(entry_cfg_level.value, driver.value(":config:entry:level:"))
            driver.report(":config:entry:dose:", 2)
            keyClick(Qt.Key_Up)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Space)
            compare(entry_cfg_dose.value, 1.5)
            view.changes.revertAll()
        }

        function test_byEar() {
            const view = review(700)
            const first = rows(view)[0]
            compare(first.Accessible.name, entry_cfg_count.label)
            verify(first.Accessible.description.includes(first.oldText) && first.Accessible.description.includes(first.newText))
            compare(findChild(first, "revert " + first.label).Accessible.name, "Revert: " + first.label)
            driver.report(":config:entry:count:", 9)
            verify(rows(view)[0].Accessible.description.startsWith("Changed meanwhile, Now: 9"))
            view.changes.dismiss(0)
            view.changes.revertAll()
        }
    }
}
