import QtQuick 2.15
import QtTest 1.15
import UiUtils.Controls 1.0

/// The frame of the focus is made when a control first has the focus.
Item {
    id: root
    width: 600
    height: 300

    Column {
        TouchButton { id: button; text: "Button" }
        TouchTabs {
            id: tabs
            width: 400
            model: ["One", "Two"]
        }
        Item { id: other; property int focusReason: Qt.TabFocusReason; width: 20; height: 20 }
    }
    TestCase {
        name: "FocusWatch"
        when: windowShown

        // All frames in an item, shown or not.
        function frames(item) {
            const own = item.objectName === "focusFrame" ? [item] : []
            return Array.from(item.children).reduce((found, child) => found.concat(frames(child)), own)
        }

        function shown(item) {
            return frames(item).filter(frame => frame.visible).length
        }

        function test_frameOfAControl() {
            compare(frames(button).length, 0)
            button.forceActiveFocus(Qt.TabFocusReason)
            compare(shown(button), 1)
            const frame = frames(button)[0]
            verify(frame.width > button.width && frame.height > button.height)
            other.forceActiveFocus()
            compare(shown(button), 0)
            button.forceActiveFocus(Qt.TabFocusReason)
            compare(frames(button), [frame])
            compare(shown(button), 1)
        }

        function test_frameOfTheTabInUse() {
            compare(frames(tabs).length, 0)
            tabs.forceActiveFocus(Qt.TabFocusReason)
            compare(shown(tabs), 1)
            const first = frames(tabs)[0]
            keyClick(Qt.Key_Right)
            compare(tabs.currentIndex, 1)
            compare(shown(tabs), 1)
            verify(!first.visible)
            // Inside of the tab, where the bar does not cut it off.
            const second = frames(tabs).find(frame => frame.visible)
            compare([second.width, second.height], [second.parent.width, second.parent.height])
            button.forceActiveFocus(Qt.TabFocusReason)
            compare(shown(tabs), 0)
            // A finger needs no frame.
            tabs.forceActiveFocus(Qt.MouseFocusReason)
            compare(shown(tabs), 0)
            keyClick(Qt.Key_Left)
        }

        // Before the watch looks; the frame goes with its control.
        function test_beginningAndEnd() {
            const made = Qt.createQmlObject("import UiUtils.Controls 1.0; TouchButton { text: 'Now'; focus: true }", root)
            compare(frames(made).length, 1)
            const frame = frames(made)[0]
            compare(frame.objectName, "focusFrame")
            made.destroy()
            tryVerify(() => frame.objectName === undefined)
        }
    }
}
