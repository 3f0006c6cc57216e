import QtQuick 2.15
import QtQuick.Controls 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Test 1.0

// A page while its report is saved.
Item {
    id: root

    width: 600
    height: 500

    Component {
        id: pageComponent
        Item {
            id: view

            property alias report: report
            property alias dialog: dialog
            property alias below: below
            property alias saveButton: saveButton
            property var progress: []
            property var answers: []
            property int taps: 0
            property int shortcuts: 0
            // Done repeatedly, also during a save.
            property var deed: () => {}

            anchors.fill: parent

            InteractiveReport {
                id: report
                onProgressChanged: view.progress.push(progress)
            }
            Button {
                id: saveButton
                text: "Save"
                onClicked: view.answers.push(report.save(true))
            }
            // Below the dialog's Cancel, too.
            MouseArea {
                id: below
                anchors { fill: parent; topMargin: 100 }
                onPressed: view.taps += 1
            }
            Shortcut { sequence: "Ctrl+1"; onActivated: view.shortcuts += 1 }
            Timer {
                interval: 10
                repeat: true
                running: true
                onTriggered: view.deed()
            }
            SaveProgress {
                id: dialog
                report: report
                delay: 50
            }
            NotificationDialog { graceTime: 0 }
        }
    }

    EntryTestCase {
        name: "SaveProgress"

        property var page

        function init() {
            page = createTemporaryObject(pageComponent, root)
            page.report.getSetting("reportName").value = "<b>long"
            waitForRendering(page)
        }

        function cleanup() {
            compare(Notifications.currentDialog, null)
            Notifications.clear()
            compare(driver.takeWarnings(), [])
        }

        function part(name) {
            return findChild(page.dialog.contentItem, name)
        }

        // Another finger's: the one that pressed Save may not be released yet.
        function tapMeanwhile(item) {
            const touch = touchEvent(item)
            touch.press(1, item).commit()
            touch.release(1, item).commit()
        }

        // Saves and repeats the action until the save is over.
        function save(rows, deed, start) {
            page.report.templatePath = driver.makeDocument(rows)
            let isBusy = false
            page.deed = () => {
                if (!page.report.saving || isBusy)
                    return
                // Input handles events itself.
                isBusy = true
                deed()
                isBusy = false
            }
            if (start)
                start()
            else
                tap(page.saveButton)
            page.deed = () => {}
        }

        function test_progressGoesUp() {
            let looks = 0
            let seen = []
            save(40000, () => {
                ++looks
                // Even before there is anything to see.
                tapMeanwhile(page.below)
                keyClick(Qt.Key_1, Qt.ControlModifier)
                compare(page.report.save(), false)
                if (page.dialog.isInSight)
                    seen.push(part("progressBar").value)
            })
            compare(page.answers, [true])
            compare(driver.savedReports(), ["<b>long.pdf"])
            compare([page.taps, page.shortcuts], [0, 0])
            verify(seen.length > 1 && looks > seen.length, seen.length + " of " + looks)
            for (const values of [page.progress, seen])
                compare(values, values.slice().sort((a, b) => a - b))
            compare(page.progress[page.progress.length - 1], 1)
            verify(!page.dialog.visible)
            tryVerify(() => page.saveButton.activeFocus)
        }

        function test_cancel_data() {
            return [{ tag: "tap", act: () => tapMeanwhile(part("cancelButton")) },
                    { tag: "mouse", start: () => mouseClick(page.saveButton), act: () => mouseClick(part("cancelButton")) },
                    { tag: "Escape", act: () => keyClick(Qt.Key_Escape) },
                    { tag: "Enter", act: () => keyClick(Qt.Key_Return) }]
        }
        function test_cancel(data) {
            save(40000, () => {
                // As a user who looks where to press.
                if (page.dialog.isInSight && page.report.progress > 0.3)
                    data.act()
            }, data.start)
            compare(page.answers, [false])
            // A cancelled save is never reported as done.
            const last = page.progress[page.progress.length - 1]
            verify(last > 0.3 && last < 1, last)
            compare(driver.savedReports(), [])
            compare(Notifications.currentDialog, null)
            compare(page.taps, 0)
            tryVerify(() => page.saveButton.activeFocus)

            // The next one starts at the beginning, however far it is when the page first sees it.
            const told = page.progress.length
            save(8000, () => {})
            compare(page.answers, [false, true])
            compare(page.progress[told], 0)
            compare(page.dialog.isCancelled, false)
        }

        // An invisible button cannot be meant, and a short save is not shown.
        function test_outOfSight() {
            page.dialog.delay = 3600000
            let wasOpen = false
            save(20000, () => {
                wasOpen = page.dialog.opened
                tapMeanwhile(part("cancelButton"))
                for (const key of [Qt.Key_Escape, Qt.Key_Return])
                    keyClick(key)
            })
            compare([wasOpen, page.taps, page.answers], [true, 0, [true]])
        }
    }
}
