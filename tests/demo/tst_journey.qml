import QtQuick 2.15
import QtTest 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Demo 1.0
import "qrc:/uiutils/demo"

// From the measurement to what lies on the disks, through the demo's own window and by taps.
Item {
    id: root

    width: 100
    height: 100

    Component {
        id: mainComponent
        Main {
            measurement: driver.measurement
        }
    }

    TestCase {
        name: "Journey"
        when: windowShown

        readonly property var formats: [{ name: "PDF", files: [".pdf"] }, { name: "XML", files: [".xml"] },
            { name: "HTML", files: [".html"] }, { name: "TEXT", files: [".txt"] }, { name: "JSON", files: [".json"] },
            { name: "ALL", files: [".html", ".json", ".pdf", ".txt", ".xml"] }]
        readonly property var starts: ({ ".html": "<?xml", ".json": "{", ".pdf": "%PDF-", ".txt": "===", ".xml": "<?xml" })

        property var window
        readonly property var report: window ? window.report : null

        function init() {
            driver.reset()
            window = createTemporaryObject(mainComponent, root)
            verify(window)
            tryCompare(window, "active", true)
        }

        function cleanup() {
            driver.limitFiles(-1)
            driver.emptyStick()
            driver.setFewSamples()
            window.destroy()
            tryVerify(() => !window)
            tryCompare(Notifications, "currentDialog", null)
            Notifications.clear()
            compare(driver.takeWarnings(), [])
        }

        // Of another finger each, because a save may have begun under one that is still down.
        property int finger: 0
        function tap(item) {
            verify(item && item.enabled)
            finger += 1
            const touch = touchEvent(item)
            touch.press(finger, item).commit()
            touch.release(finger, item).commit()
        }

        function find(name) {
            const found = findChild(window, name)
            verify(found, name)
            return found
        }

        function withText(item, text) {
            if (item.text === text && item.visible && item.clicked)
                return item
            let found = null
            for (let i = 0; item.children && i < item.children.length && !found; ++i)
                found = withText(item.children[i], text)
            return found
        }

        function go(tab) {
            tap(withText(window.footer, tab))
        }

        function measure() {
            go("Measure")
            tap(withText(window.contentItem, "Start"))
            tryCompare(driver.measurement, "state", LoopbackMeasurement.Finished, 60000)
            go("Report")
            waitForRendering(window.contentItem)
        }

        function choose(name, format, location) {
            report.getSetting("reportName").value = name
            report.getSetting("reportFormat").value = formats.findIndex(candidate => candidate.name === format)
            driver.setSaveLocation(location)
        }

        // What a technician's drawer holds.
        function plug() {
            find("stickButton").forceActiveFocus()
            tap(find("stickButton"))
            verify(stick().attached)
        }
        function stick() {
            let item = find("stickButton")
            while (!item.stick)
                item = item.parent
            return item.stick
        }

        function save() {
            tap(find("saveButton"))
        }

        function dialogTitle() {
            const dialog = Notifications.currentDialog
            return dialog ? dialog.longLabel : ""
        }
        function answer(isYes) {
            if (isYes)
                Notifications.accept()
            else
                Notifications.reject()
        }

        function records(files) {
            return files.map(file => file + ".metadata")
        }

        function test_everyFormatEverywhere_data() {
            const rows = []
            for (const format of formats) {
                for (const place of ["internal", "USB", "both"])
                    rows.push({ tag: format.name + ", " + place, format: format, place: place })
            }
            return rows
        }
        function test_everyFormatEverywhere(data) {
            measure()
            plug()
            choose("line 7", data.format.name, ["internal", "USB", "both"].indexOf(data.place))
            save()
            compare(dialogTitle(), "")
            const files = data.format.files.map(suffix => "line 7" + suffix)
            const recorded = files.concat(records(files)).sort()
            const isInUnit = data.place !== "USB"
            compare(driver.files(), isInUnit ? files : [])
            compare(driver.filesIn("mnt/usb"), data.place === "USB" ? recorded : data.place === "both" ? files : [])
            compare(driver.filesIn("cust/private/reports/metadata/loopback"), isInUnit ? records(files) : [])
            for (const suffix of data.format.files) {
                const text = driver.textOf((isInUnit ? "cust/public/reports/loopback/" : "mnt/usb/") + "line 7" + suffix)
                verify(text.startsWith(starts[suffix]), text.slice(0, 20))
                if (data.place === "both")
                    compare(driver.textOf("mnt/usb/line 7" + suffix), text)
            }
            // What is not to be synced is listed, wherever it lies.
            const list = driver.textOf("cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt")
            verify(list.includes((isInUnit ? "/cust/public/reports/loopback/" : "/mnt/usb/") + files[0] + "\n"), list)
            compare(find("reportList").count, files.length)
        }

        function test_fullStick_data() {
            return [{ tag: "USB", place: 1 }, { tag: "both", place: 2 }]
        }
        function test_fullStick(data) {
            measure()
            plug()
            if (!driver.fillStick())
                skip("Only those who may mount a drive can fill one.")
            choose("line 7", "ALL", data.place)
            save()
            compare(dialogTitle(), "Not Enough Space")
            answer(true)
            compare([driver.files(), driver.filesIn("mnt/usb")], [[], []])
            compare(Notifications.count, 0)
        }

        function test_cancelledSave() {
            driver.setManySamples()
            measure()
            choose("line 7", "ALL", 0)
            const progress = find("saveProgress")
            progress.delay = 0
            let wasTapped = false
            const tapCancel = () => {
                if (report.saving && !wasTapped && report.progress > 0 && progress.opened) {
                    wasTapped = true
                    tap(findChild(progress.contentItem, "cancelButton"))
                }
            }
            report.progressChanged.connect(tapCancel)
            save()
            report.progressChanged.disconnect(tapCancel)
            verify(wasTapped)
            compare(dialogTitle(), "")
            compare(report.saving, false)
            compare(driver.files().includes("line 7.json"), false)
            // What came before the cancel is whole, and nothing lies beside it.
            for (const file of driver.files())
                verify(file.startsWith("line 7."), file)
            save()
            if (dialogTitle() !== "")
                answer(true)
            compare(driver.files().length, 5)
        }
    }
}
