import QtQuick 2.15
import QtQuick.Controls 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// The tray and the dialog as users operate them.
Item {
    id: root

    width: 500
    height: 600

    Component {
        id: trayComponent
        NotificationTray { height: 580 }
    }
    Component {
        id: dialogComponent
        NotificationDialog { graceTime: 0 }
    }
    Component {
        id: pageComponent
        Item {
            property alias dialog: dialog
            NotificationDialog { id: dialog; graceTime: 0 }
        }
    }
    Component {
        id: filesComponent
        FileUtils {
            property var answers: []
            onAccepted: answers = answers.concat("yes " + notification.value("Filename"))
            onRejected: answers = answers.concat("no " + notification.value("Filename"))
        }
    }
    Component {
        id: fieldComponent
        TextEntry {}
    }

    EntryTestCase {
        name: "Notifications"

        property var files

        function init() {
            files = createTemporaryObject(filesComponent, root)
        }

        function cleanup() {
            files.destroy()
            tryCompare(Notifications, "currentDialog", null)
            Notifications.clear()
            compare(driver.takeWarnings(), [])
        }

        function makeDialog(properties) {
            const dialog = createTemporaryObject(dialogComponent, root, properties || {})
            verify(dialog)
            return dialog
        }

        function part(dialog, name) {
            tryVerify(() => dialog.opened)
            const found = findChild(dialog.contentItem, name)
            verify(found, name)
            return found
        }

        function ask(name) {
            files.sendNotificationDeleteRequest("/mnt/usb/" + name, {})
        }

        function row(tray, index) {
            const list = findChild(tray, "trayList")
            list.forceLayout()
            tryVerify(() => list.itemAtIndex(index))
            return list.itemAtIndex(index)
        }

        function fillTray(count) {
            for (let i = 0; i < count; ++i)
                files.sendNotificationReadError("/mnt/usb/" + i)
        }

        function test_answers_data() {
            return [{ tag: "tap yes", act: dialog => tap(part(dialog, "acceptButton")), answer: "yes" },
                    { tag: "tap no", act: dialog => tap(part(dialog, "rejectButton")), answer: "no" },
                    { tag: "Escape", act: () => keyClick(Qt.Key_Escape), answer: "no" },
                    { tag: "Enter in passing", act: () => keyClick(Qt.Key_Return), answer: "no" },
                    { tag: "Enter on yes", act: () => { keyClick(Qt.Key_Right); keyClick(Qt.Key_Enter) }, answer: "yes" },
                    { tag: "back to no", act: () => { keyClick(Qt.Key_Right); keyClick(Qt.Key_Left); keyClick(Qt.Key_Space) }, answer: "no" },
                    { tag: "Tab", act: () => { keyClick(Qt.Key_Tab); keyClick(Qt.Key_Return) }, answer: "yes" }]
        }
        // The words of the one who asks, all of it on the dialog's own ground.
        function test_verbs() {
            const dialog = makeDialog()
            const words = { acceptText: "Overwrite", rejectText: "Keep", details: "a.html\na.pdf" }
            files.sendNotificationOverwriteRequest("/mnt/usb/a.html", words)
            compare(part(dialog, "acceptButton").text, words.acceptText)
            compare(part(dialog, "rejectButton").text, words.rejectText)
            verify(part(dialog, "dialogText").text.endsWith("?\n\n" + words.details))
            const button = part(dialog, "acceptButton")
            const corner = () => button.mapToItem(dialog.background, button.width, button.height)
            tryVerify(() => corner().x < dialog.background.width && corner().y < dialog.background.height)
            keyClick(Qt.Key_Escape)
        }
        // Who uses keys sees where they go, in the dialog and afterwards.
        function test_focusIsShownToKeys_data() {
            return [{ tag: "keys", reason: Qt.TabFocusReason, shown: true }, { tag: "finger", reason: Qt.MouseFocusReason, shown: false }]
        }
        function test_focusIsShownToKeys(data) {
            const field = findChild(make(fieldComponent), "field")
            field.forceActiveFocus(data.reason)
            const dialog = makeDialog()
            ask("a")
            const button = part(dialog, "rejectButton")
            compare(button.activeFocus, true)
            compare(findChild(button, "focusFrame").visible, data.shown)
            keyClick(Qt.Key_Escape)
            tryCompare(dialog, "visible", false)
            compare(field.activeFocus && ControlsStyle.isByKey(field), data.shown)
        }
        function test_answers(data) {
            const dialog = makeDialog()
            verify(!dialog.visible)
            ask("a")
            compare(part(dialog, "dialogTitle").text, "Delete File")
            compare(part(dialog, "dialogText").text, "Do you want to delete the File USB:/a?")
            data.act(dialog)
            compare(files.answers, [data.answer + " /mnt/usb/a"])
            tryCompare(dialog, "visible", false)
        }

        function test_questionsHaveVerbs() {
            const dialog = makeDialog()
            const shown = () => ["acceptButton", "rejectButton", "dialogText"].map(name => part(dialog, name).text)
            files.sendNotificationDeleteRequest("/mnt/usb/a\n/mnt/usb/<b>", {})
            compare(shown(), ["Delete", "Keep", "Do you want to delete these 2 files?\n\nUSB:/a\nUSB:/<b>"])
            files.sendNotificationOverwriteRequest("/mnt/usb/a", { "rejectText": "" })
            tryVerify(() => part(dialog, "acceptButton").text === "Overwrite")
            compare(shown(), ["Overwrite", "No", "Do you want to overwrite File USB:/a?"])
            files.sendNotificationWriteError("/mnt/usb/a")
            tryVerify(() => part(dialog, "acceptButton").text === "OK")
        }

        function test_errorsHaveOneAnswer_data() {
            return [{ tag: "Enter", key: Qt.Key_Return }, { tag: "Escape", key: Qt.Key_Escape }]
        }
        function test_errorsHaveOneAnswer(data) {
            const dialog = makeDialog()
            files.sendNotificationWriteError("/mnt/usb/a")
            compare(part(dialog, "rejectButton").visible, false)
            compare(part(dialog, "mark").word, "Error")
            keyClick(data.key)
            tryCompare(dialog, "visible", false)
            compare(files.answers, [])
            compare(Notifications.count, 1)
        }

        function test_oneAfterTheOther() {
            const others = createTemporaryObject(filesComponent, root)
            const dialog = makeDialog()
            ask("a")
            others.sendNotificationReadError("/mnt/usb/b")
            compare(part(dialog, "waitingText").text, "1 more")
            tap(part(dialog, "acceptButton"))
            compare(files.answers.length, 1)
            compare(part(dialog, "dialogTitle").text, "Read Error")
            compare(part(dialog, "waitingText").text, "")
            keyClick(Qt.Key_Return)
            tryCompare(dialog, "visible", false)
        }

        // The finger was on its way to another question.
        function test_aPressEndsWithItsDialog() {
            const others = createTemporaryObject(filesComponent, root)
            const dialog = makeDialog()
            ask("a")
            others.sendNotificationDeleteRequest("/mnt/usb/b", {})
            const touch = touchEvent(root)
            const place = part(dialog, "acceptButton").mapToItem(root, 20, 20)
            touch.press(0, root, place.x, place.y).commit()
            files.sendNotificationReadError("/mnt/usb/c")
            tryVerify(() => part(dialog, "dialogText").text === "Do you want to delete the File USB:/b?")
            touch.release(0, root, place.x, place.y).commit()
            compare(others.answers, [])
            compare(part(dialog, "dialogText").text, "Do you want to delete the File USB:/b?")
            tap(part(dialog, "acceptButton"))
            compare(others.answers, ["yes /mnt/usb/b"])
        }

        function test_noAnswerAtOnce() {
            const dialog = makeDialog({ graceTime: 3600000 })
            ask("a")
            tap(part(dialog, "acceptButton"))
            keyClick(Qt.Key_Escape)
            compare(files.answers, [])
            verify(dialog.visible)
            Notifications.reject()
            compare(files.answers.length, 1)

            const quick = makeDialog({ graceTime: 20 })
            dialog.destroy()
            ask("b")
            part(quick, "acceptButton")
            tryVerify(() => { keyClick(Qt.Key_Escape); return files.answers.length === 2 })
        }

        // Enter was pressed on something else.
        function test_aHeldKeyAnswersNothing() {
            const dialog = makeDialog()
            ask("a")
            part(dialog, "rejectButton")
            for (const key of [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Escape, Qt.Key_Space])
                driver.holdKey(key)
            compare(files.answers, [])
        }

        function test_anOpenQuestionMeetsItsPage() {
            const page = pageComponent.createObject(null)
            ask("a")
            page.parent = root
            tap(part(page.dialog, "rejectButton"))
            compare(files.answers, ["no /mnt/usb/a"])
            page.destroy()
        }

        function test_theFocusReturns() {
            const field = make(fieldComponent)
            const dialog = makeDialog()
            type(field, "half a wo")
            ask("a")
            part(dialog, "rejectButton")
            keyClick("x")
            keyClick(Qt.Key_Escape)
            tryVerify(() => fieldOf(field).activeFocus)
            compare(fieldOf(field).text, "half a wo")
        }

        function test_longTextsScroll() {
            const dialog = makeDialog()
            files.sendNotificationWriteError("/mnt/usb/" + "name ".repeat(2000) + "<b>")
            const scrolled = part(dialog, "scrolled")
            verify(dialog.height < root.height)
            keyClick(Qt.Key_Up)
            compare(scrolled.contentY, 0)
            keyClick(Qt.Key_Down)
            verify(scrolled.contentY > 0)
            verify(part(dialog, "dialogText").text.endsWith("<b>"))
            compare(part(dialog, "dialogText").textFormat, Text.PlainText)
        }

        function test_trayNewestFirst() {
            const tray = make(trayComponent)
            compare(tray.count, 0)
            verify(!findChild(tray, "clearButton").enabled)
            fillTray(3)
            compare(tray.count, 3)
            compare(findChild(row(tray, 0), "mark").word, "Error")
            verify(row(tray, 0).Accessible.description.endsWith("USB:/2"))
            tap(findChild(row(tray, 1), "dismissButton"))
            compare(tray.count, 2)
            tryVerify(() => row(tray, 1).Accessible.description.endsWith("USB:/0"))
            tap(findChild(tray, "clearButton"))
            compare(tray.count, 0)
        }

        function test_trayKeys() {
            fillTray(4)
            const tray = make(trayComponent)
            tray.forceActiveFocus()
            const list = findChild(tray, "trayList")
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Delete)
            tryCompare(list, "currentIndex", 1)
            tryVerify(() => row(tray, 1).Accessible.description.endsWith("USB:/1"))
            // New entries leave the user on the same entry.
            files.sendNotificationReadError("/mnt/usb/new")
            keyClick(Qt.Key_Delete)
            tryVerify(() => row(tray, 2).Accessible.description.endsWith("USB:/0"))
            tryCompare(list, "currentIndex", 2)
            tap(findChild(row(tray, 0), "dismissButton"))
            tryCompare(list, "currentIndex", 1)
            keyClick(Qt.Key_Delete)
            tryCompare(list, "currentIndex", 0)
            verify(row(tray, 0).Accessible.description.endsWith("USB:/3"))
            for (let i = 0; i < 5; ++i)
                keyClick(Qt.Key_Delete)
            compare(tray.count, 0)
        }
    }
}
