import QtQuick 2.15
import QtTest 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// Input and observation for the tests of entries.
TestCase {
    readonly property Component entryComponent: Component { ItemEntry {} }
    readonly property Component itemComponent: Component { UiData {} }

    when: windowShown

    function init() {
        driver.setLocale("en_US")
        driver.reset()
    }

    function cleanup() {
        compare(driver.takeWarnings(), [])
    }

    function make(component, properties) {
        const made = createTemporaryObject(component, parent, Object.assign({ width: 400 }, properties))
        verify(made)
        waitForRendering(made)
        return made
    }

    function fieldOf(entry) {
        return findChild(entry, "field")
    }

    // Types as on a keyboard, replacing the present text.
    function type(entry, text) {
        const field = fieldOf(entry)
        field.forceActiveFocus()
        field.selectAll()
        if (text === "")
            keyClick(Qt.Key_Backspace)
        for (const character of text)
            keyClick(character)
        compare(field.text, text)
    }

    function enter(entry, text) {
        type(entry, text)
        keyClick(Qt.Key_Return)
    }

    function tap(item) {
        const touch = touchEvent(item)
        touch.press(0, item).commit()
        touch.release(0, item).commit()
    }

    function padOf(entry) {
        const pad = findChild(entry, "pad")
        tryVerify(() => pad && pad.opened)
        return pad
    }

    function tapKeys(pad, keys) {
        for (const key of keys)
            tap(findChild(pad.contentItem, key))
    }
}
