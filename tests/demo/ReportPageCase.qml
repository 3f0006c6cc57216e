import QtQuick 2.15
import QtTest 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Demo 1.0
import "qrc:/uiutils/demo"

// The report page as users operate it, with a new instrument for each test.
TestCase {
    when: windowShown

    property var window
    readonly property var page: window ? window.page : null
    readonly property var dialog: window ? window.dialog : null

    function initTestCase() {
        driver.reset()
        driver.measurement.start()
        tryCompare(driver.measurement, "state", LoopbackMeasurement.Finished, 60000)
    }

    function init() {
        driver.reset()
        window = createTemporaryObject(windowComponent, parent)
        verify(window)
        waitForRendering(page)
        // The stored settings arrive a little later, followed by the name of the run.
        tryVerify(() => field("nameEntry").text.startsWith("loopback_"))
    }

    function cleanup() {
        window.destroy()
        tryVerify(() => !window)
        tryCompare(Notifications, "currentDialog", null)
        Notifications.clear()
        compare(driver.takeWarnings(), [])
    }

    function entry(name) {
        const found = findChild(page, name)
        verify(found, name)
        return found
    }
    function field(name) {
        return findChild(entry(name), "field")
    }

    function type(name, text) {
        field(name).forceActiveFocus()
        field(name).selectAll()
        keyClick(Qt.Key_Backspace)
        for (const character of text)
            keyClick(character)
        compare(field(name).text, text)
    }

    // Steps down through the choices.
    function choose(label, name) {
        const box = findChild(entry(name || "formatEntry"), "box")
        box.forceActiveFocus()
        while (box.displayText !== label && box.currentIndex < box.count - 1)
            keyClick(Qt.Key_Down)
        compare(box.displayText, label)
    }

    function tap(item) {
        const touch = touchEvent(item)
        touch.press(0, item).commit()
        touch.release(0, item).commit()
    }

    function press() {
        const button = entry("saveButton")
        verify(button.enabled)
        tap(button)
    }

    function part(name) {
        tryVerify(() => dialog.opened)
        return findChild(dialog.contentItem, name)
    }

    function trayTitles() {
        const titles = []
        for (let i = 0; i < Notifications.count; ++i)
            titles.push(Notifications.data(Notifications.index(i, 0), 257))
        return titles
    }

    Component {
        id: windowComponent
        Item {
            readonly property alias page: page
            readonly property alias dialog: dialog

            anchors.fill: parent

            ReportPage {
                id: page
                anchors.fill: parent
                measurement: driver.measurement
            }
            NotificationDialog { id: dialog; graceTime: 0 }
        }
    }
}
