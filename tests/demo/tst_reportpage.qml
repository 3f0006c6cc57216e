import QtQuick 2.15
import UiUtils 1.0

// The report page as users operate it.
Item {
    width: 1024
    height: 484

    ReportPageCase {
        name: "ReportPage"

        function test_firstSave_data() {
            return [{ tag: "TEXT", format: "TEXT", suffixes: [".txt"], start: "========\nLine <3>" },
                    { tag: "compressed", format: "TEXT", isCompressed: true, suffixes: [".txt.gz"], start: "" },
                    { tag: "ALL", format: "ALL", suffixes: [".html", ".json", ".pdf", ".txt", ".xml"], start: "<?xml version=\"1.0\"?>\n<!DOCTYPE html" }]
        }
        function test_firstSave(data) {
            type("titleEntry", "Line <3>")
            type("nameEntry", "lindhof-17")
            choose(data.format)
            if (data.isCompressed)
                tap(findChild(entry("compressionEntry"), "switch"))
            press()
            compare(Notifications.currentDialog, null)
            compare(driver.files(), data.suffixes.map(suffix => "lindhof-17" + suffix))
            const first = driver.contents(driver.files()[0])
            verify(first.startsWith(data.start))
            if (data.format === "ALL")
                verify(first.indexOf("Sample 2<") < first.indexOf("Sample 10<"))
            compare(page.report.reportFiles.length, data.suffixes.length)
            tryCompare(findChild(page, "reportList"), "count", data.suffixes.length)
            // One notification for all files of a save.
            compare(trayTitles(), ["Report Saved"])
        }

        function test_preview() {
            const preview = page.preview
            tap(entry("previewButton"))
            tryVerify(() => preview.preview.pageCount > 1)
            compare(driver.files(), [])
            tap(findChild(preview.contentItem, "closeButton"))
            tryCompare(preview, "visible", false)
        }

        function test_overwrite_data() {
            return [{ tag: "no", answer: "rejectButton", format: "HTML" }, { tag: "yes", answer: "acceptButton", format: "HTML", isReplaced: true },
                    { tag: "no, all formats", answer: "rejectButton", format: "ALL" },
                    { tag: "yes, all formats", answer: "acceptButton", format: "ALL", isReplaced: true }]
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
            tap(part(data.answer))
            compare(driver.contents("lindhof-17.html") !== "an earlier page", data.isReplaced === true)
            compare(driver.contents("lindhof-17.xml") !== "an earlier text", data.isReplaced === true && data.format === "ALL")
            compare(driver.files().length, data.isReplaced && data.format === "ALL" ? 5 : 2)
            compare(trayTitles(), data.isReplaced ? ["Report Saved"] : [])
            tryCompare(dialog, "visible", false)

            // The next save asks again, whatever the answer was.
            press()
            compare(part("dialogTitle").text, "Report Exists")
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

    }
}
