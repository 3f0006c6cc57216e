import QtQuick 2.15
import UiUtils 1.0

// Where reports are saved, with a USB drive and without.
Item {
    id: root

    width: 1024
    height: 484

    ReportPageCase {
        name: "ReportUsb"

        function text(name) {
            return entry(name).text
        }

        function resize(size) {
            root.width = size.width
            root.height = size.height
            waitForRendering(page)
        }

        // As a finger does it when the button is visible.
        function pressStick() {
            entry("stickButton").forceActiveFocus()
            tap(entry("stickButton"))
        }

        function save(name) {
            choose("TEXT")
            type("nameEntry", name)
            press()
        }

        // A drive that was yanked: nothing may be written to the unit's own folder under the mount.
        function test_saveLocation_data() {
            return [{ tag: "USB, yanked", label: "USB", isIn: true, isYanked: true, location: 1, inUnit: [], onStick: [] },
                    { tag: "both, yanked", label: "Internal and USB", isIn: true, isYanked: true, location: 2, inUnit: ["a.txt"], onStick: [] },
                    { tag: "internal", label: "Internal", isIn: true, location: 0, inUnit: ["a.txt"], onStick: [] },
                    { tag: "USB", label: "USB", isIn: true, location: 1, inUnit: [], onStick: ["a.txt", "a.txt.metadata"] },
                    { tag: "both", label: "Internal and USB", isIn: true, location: 2, inUnit: ["a.txt"], onStick: ["a.txt"] },
                    { tag: "USB, without a stick", label: "USB", isIn: false, location: 1, inUnit: ["a.txt"], onStick: [] },
                    { tag: "both, without a stick", label: "Internal and USB", isIn: false, location: 2, inUnit: ["a.txt"], onStick: [] }]
        }
        function test_saveLocation(data) {
            if (data.isIn)
                pressStick()
            choose(data.label, "locationEntry")
            compare(driver.saveLocation(), data.location)
            if (data.isYanked)
                page.stick.yank()
            compare(text("stickButton"), data.isIn && !data.isYanked ? "Unplug" : "Plug in")
            compare(text("stickState"), data.isYanked ? "The USB drive was removed. Saving on it fails until it is back."
                                                      : data.isIn ? "A USB drive is plugged in."
                                                                  : "Without a USB drive reports are saved on the unit.")
            compare(page.report.saveLocation, data.inUnit.length === 0 ? "USB:/" : "Internal:/reports/loopback/")
            verify(text("usage").startsWith(data.inUnit.length === 0 && !data.isYanked ? "USB " : "Unit "))
            save("a")
            compare(trayTitles().includes("Write Error"), data.isYanked === true)
            compare(driver.files(), data.inUnit)
            compare(driver.filesIn("mnt/usb"), data.onStick)
        }

        // Which reports are listed: those of the last save's place, or of the one selected since.
        function test_list() {
            const lists = (place, count, canChoose) => {
                compare(text("reportPlace"), place === "USB" ? "USB:/" : "Internal:/reports/loopback/")
                tryCompare(entry("reportList"), "count", count)
                const current = () => entry("reportList").currentItem
                tryVerify(() => count === 0 || (current() && current().file.drive === (place === "USB" ? SavedReports.Usb : SavedReports.Unit)))
                compare([entry("unitButton").visible, entry("usbButton").visible], [canChoose, canChoose])
                compare([entry("unitButton").checked, entry("usbButton").checked], [place !== "USB", place === "USB"])
                tryCompare(entry("copyButton"), "visible", count > 0 && place !== "USB")
                tryCompare(entry("deleteButton"), "visible", count > 0)
            }
            driver.put("old.txt", "a report")
            page.report.reportFilesChanged()
            lists("unit", 1, false)
            pressStick()
            lists("unit", 1, true)
            choose("USB", "locationEntry")
            save("a")
            lists("USB", 1, true)
            tap(entry("unitButton"))
            lists("unit", 1, true)
            entry("usbButton").forceActiveFocus()
            keyClick(Qt.Key_Return)
            lists("USB", 1, true)
            pressStick()
            lists("unit", 1, false)
            compare(page.report.saveLocation, "Internal:/reports/loopback/")
            pressStick()
            lists("unit", 1, true)

            // Not only on the drive, so that it is in the unit's list.
            tap(entry("usbButton"))
            choose("Internal and USB", "locationEntry")
            save("b")
            lists("unit", 2, true)
            tap(entry("usbButton"))
            lists("USB", 2, true)
            compare(page.report.reportFiles.map(file => file.name).sort(), ["b", "old"])

            tap(entry("deleteButton"))
            tap(part("acceptButton"))
            lists("USB", 1, true)
            compare(driver.files(), ["b.txt", "old.txt"])
        }

        // Changes that the settings page holds back do not count yet, and hold nothing back here.
        function test_locationIsTakenAtOnce() {
            services.basemgr.startChanges()
            basemgr_cfg_saveLocation.value = 1
            compare(driver.saveLocation(), 0)
            verify(findChild(entry("locationEntry"), "box").displayText === "USB")
            compare(entry("locationEntry").news, "Not applied yet: see Settings.")
            compare(text("stickState"), "No USB drive is plugged in.")
            choose("Internal and USB", "locationEntry")
            compare(driver.saveLocation(), 2)
            compare(entry("locationEntry").news, "")
            services.basemgr.revertChanges()
            compare(driver.saveLocation(), 2)
            compare(findChild(entry("locationEntry"), "box").displayText, "Internal and USB")
        }

        function test_fingerScrollsFromAField() {
            resize(Qt.size(880, 424))
            const before = entry("stickButton").mapToItem(page, 0, 0).y
            const start = field("nameEntry").mapToItem(page, 100, 24)
            const touch = touchEvent(page)
            touch.press(0, page, start.x, start.y).commit()
            for (let moved = 8; moved <= 96; moved += 8)
                touch.move(0, page, start.x, start.y - moved).commit()
            touch.release(0, page, start.x, start.y - 96).commit()
            tryVerify(() => entry("stickButton").mapToItem(page, 0, 0).y < before - 50)
        }

        // The page must not scroll under the finger, or the tap is lost.
        function test_tapOnWhatIsPartlyHidden() {
            resize(Qt.size(880, 384))
            const button = entry("stickButton")
            const end = entry("saveButton").mapToItem(page, 0, 0).y
            const bottom = () => button.mapToItem(page, 0, button.height).y
            verify(bottom() > end)
            const finger = button.mapToItem(page, 50, 8)
            const touch = touchEvent(page)
            touch.press(0, page, finger.x, finger.y).commit()
            // No finger keeps still.
            touch.move(0, page, finger.x + 1, finger.y).commit()
            touch.release(0, page, finger.x + 1, finger.y).commit()
            verify(page.stick.attached)
            verify(bottom() <= end)
        }

        function test_fits_data() {
            return [{ tag: "instrument", size: Qt.size(1024, 484) }, { tag: "smallest", size: Qt.size(880, 424) }]
        }
        function test_fits(data) {
            resize(data.size)
            choose("Internal and USB", "locationEntry")
            waitForRendering(page)
            // The page shows what the next save does, and on the instrument all of it is visible.
            const last = entry(data.tag === "instrument" ? "syncEntry" : "stickButton")
            const end = entry("saveButton").mapToItem(page, 0, 0).y
            verify(last.mapToItem(page, 0, last.height).y <= end)
            const controls = [field("titleEntry"), field("nameEntry"), findChild(entry("formatEntry"), "box"),
                              findChild(entry("compressionEntry"), "switch"), findChild(entry("locationEntry"), "box"),
                              entry("stickButton"), findChild(entry("syncEntry"), "switch")]
            for (const control of controls) {
                control.forceActiveFocus()
                verify(control.height >= 40, control)
                const top = control.mapToItem(page, 0, 0).y
                verify(top >= 0 && top + control.height <= end, control + " is at " + top)
            }
            verify(!entry("stickState").truncated)
            verify(!findChild(entry("locationEntry"), "box").contentItem.truncated)
        }
    }
}
