import QtQuick 2.15
import UiUtils 1.0

// The report page under a user's hands.
Item {
    width: 1024
    height: 484

    ReportPageCase {
        name: "ReportPage"

        function test_firstSave_data() {
            return [{ tag: "TEXT", format: "TEXT", suffixes: [".txt"], start: "========\nLine <3>" },
                    { tag: "ALL", format: "ALL", suffixes: [".html", ".json", ".pdf", ".txt", ".xml"], start: "<?xml version=\"1.0\"?>\n<!DOCTYPE html" }]
        }
        function test_firstSave(data) {
            type("titleEntry", "Line <3>")
            type("nameEntry", "lindhof-17")
            choose(data.format)
            press()
            compare(Notifications.currentDialog, null)
            compare(driver.files(), data.suffixes.map(suffix => "lindhof-17" + suffix))
            verify(driver.contents(driver.files()[0]).startsWith(data.start))
            compare(page.report.reportFiles.length, data.suffixes.length)
            compare(findChild(page, "reportList").count, data.suffixes.length)
            // Of the files of one save the user is told once.
            compare(trayTitles(), ["Report Saved"])
        }

        function test_compressed() {
            choose("TEXT")
            type("nameEntry", "small")
            tap(findChild(entry("compressionEntry"), "switch"))
            press()
            compare(driver.files(), ["small.txt.gz"])
            compare(rows(), ["small TEXT gz"])
            press()
            compare(part("dialogTitle").text, "Report Exists")
        }

        function test_overwrite_data() {
            return [{ tag: "tap yes", act: () => tap(part("acceptButton")), format: "HTML", isReplaced: true },
                    { tag: "tap no", act: () => tap(part("rejectButton")), format: "HTML" },
                    { tag: "Enter in passing", act: () => { part("rejectButton"); keyClick(Qt.Key_Return) }, format: "HTML" },
                    { tag: "Escape, all formats", act: () => { part("rejectButton"); keyClick(Qt.Key_Escape) }, format: "ALL" },
                    { tag: "yes, all formats", act: () => tap(part("acceptButton")), format: "ALL", isReplaced: true }]
        }
        function test_overwrite(data) {
            type("nameEntry", "lindhof-17")
            driver.put("lindhof-17.html", "an earlier page")
            driver.put("lindhof-17.xml", "an earlier text")
            choose(data.format)
            press()
            compare(part("dialogTitle").text, "Report Exists")
            compare(Notifications.waitingDialogs, 0)
            compare(driver.contents("lindhof-17.html"), "an earlier page")
            data.act()
            compare(driver.contents("lindhof-17.html") !== "an earlier page", data.isReplaced === true)
            compare(driver.contents("lindhof-17.xml") !== "an earlier text", data.isReplaced === true && data.format === "ALL")
            compare(driver.files().length, data.isReplaced && data.format === "ALL" ? 5 : 2)
            compare(trayTitles(), data.isReplaced ? ["Report Saved"] : [])
            tryCompare(dialog, "visible", false)

            // The next save asks anew, whatever was answered.
            press()
            compare(part("dialogTitle").text, "Report Exists")
        }

        function test_fullDisk() {
            type("nameEntry", "lindhof-17")
            driver.put("lindhof-17.pdf", "an earlier report")
            choose("PDF")
            press()
            driver.limitFiles(1024)
            tap(part("acceptButton"))
            driver.limitFiles(-1)
            compare(part("dialogTitle").text, "Write Error")
            compare(driver.contents("lindhof-17.pdf"), "an earlier report")
            compare(driver.files(), ["lindhof-17.pdf"])
            compare(trayTitles(), ["Write Error"])
            tap(part("acceptButton"))
            tryCompare(dialog, "visible", false)

            press()
            tap(part("acceptButton"))
            verify(driver.contents("lindhof-17.pdf") !== "an earlier report")
            compare(trayTitles(), ["Report Saved", "Write Error"])
        }

        function test_names_data() {
            return [{ tag: "slash", text: "a/b" }, { tag: "51", text: "x".repeat(51) }, 
                    { tag: "50", text: "x".repeat(50), isGood: true },
                    { tag: "blank and point", text: "Fiber 7.2", isGood: true },
                    { tag: "none", text: "", isGood: true, isProposed: true }]
        }
        function test_names(data) {
            type("nameEntry", data.text)
            compare(entry("saveButton").enabled, data.isGood === true)
            choose("TEXT")
            if (data.isGood)
                press()
            else
                tap(entry("saveButton"))
            const name = data.isProposed ? page.report.proposedFileName() : data.text
            compare(driver.files(), data.isGood ? [name + ".txt"] : [])
        }

        function test_settingsSurviveARestart() {
            type("titleEntry", "Line <3>")
            type("nameEntry", "lindhof-17")
            choose("HTML")
            tap(findChild(entry("compressionEntry"), "switch"))
            const sync = findChild(entry("syncEntry"), "switch")
            const isSynced = sync.checked
            sync.forceActiveFocus()
            tap(sync)
            press()
            close()
            open()
            tryCompare(field("titleEntry"), "text", "Line <3>")
            tryCompare(findChild(entry("formatEntry"), "box"), "displayText", "HTML")
            compare(findChild(entry("compressionEntry"), "switch").checked, true)
            compare(findChild(entry("syncEntry"), "switch").checked, !isSynced)
            compare(findChild(page, "reportList").count, 1)
        }
    }
}
