import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Demo 1.0

// What the pages share: the job in hand, its measurement, the report of it, and what holds the results until they are
// saved.
QtObject {
    id: session

    property LoopbackMeasurement measurement
    readonly property bool hasResults: measurement.state === LoopbackMeasurement.Finished
    // Whether the results of the last run are in a file.
    property bool isSaved: false

    // Asks for a page by its name.
    signal pageWanted(string name)
    // Asks for a picture of the screen.
    signal shotWanted

    // The code of the language that the unit remembers; empty for that of the system.
    readonly property string language: typeof unit_cfg_language === "undefined" ? "" : unit_cfg_language.value || ""
    // A switch evaluates this binding again, too.
    onLanguageChanged: Qt.callLater(speak)

    function speak() {
        if (language !== "")
            Languages.current = language
    }

    readonly property string jobId: typeof basemgr_res_jobID === "undefined" ? "" : basemgr_res_jobID.value || ""
    readonly property bool hasJob: jobId !== "" && basemgr_res_isJobActive.value === true
    readonly property bool hasDrive: typeof basemgr_res_usbAttached !== "undefined" && basemgr_res_usbAttached.value === true
    // Whether files are to go to a drive that is not there.
    readonly property bool missesDrive: !hasDrive && typeof basemgr_cfg_saveLocation !== "undefined" && !!basemgr_cfg_saveLocation.enums
                                        && basemgr_cfg_saveLocation.value !== basemgr_cfg_saveLocation.enums.Internal
    readonly property string customer: typeof basemgr_cfg_customerInfo_name === "undefined" ? ""
                                     : known(basemgr_cfg_customerInfo_name.value)
    readonly property string user: typeof basemgr_cfg_userInfo_lastName === "undefined" ? ""
                                 : (known(basemgr_cfg_userInfo_firstName.value) + " "
                                    + known(basemgr_cfg_userInfo_lastName.value)).trim()

    // What is not saved yet survives a crash.
    readonly property ReportDraft draft: ReportDraft {
        draftId: "loopback"
        report: session.report
        onRestored: {
            // Results belong to the job for which they were measured.
            if (data.job && data.job.jobId !== session.jobId && services.basemgr !== undefined)
                session.jobs.open(data.job)
            session.measurement.restore(data)
        }
    }
    readonly property LoopbackReport report: LoopbackReport {
        measurement: session.measurement
        tag: "loopback"
        onContentWanted: session.builder.build()
        onReportOverwriteAccepted: save(true)
        onFileWritten: {
            session.isSaved = true
            session.look()
        }
    }
    readonly property ReportBuilder builder: ReportBuilder {
        measurement: session.measurement
        report: session.report.content
        title: session.report.title
    }
    readonly property ScreenCamera camera: ScreenCamera {}
    readonly property JobChoice jobs: JobChoice { technician: session.user }
    readonly property PendingChanges setup: PendingChanges { manifests: [services.loopback] }
    readonly property Connections results: Connections {
        target: session.measurement
        function onFinished() {
            session.isSaved = false
            session.builder.build()
            const isTaken = session.jobs.taken && session.jobs.taken.jobId === session.jobId
            session.draft.data = Object.assign({ job: isTaken ? session.jobs.taken : null }, session.measurement.results())
        }
    }

    // How full the unit's drive is, in percent; measured anew by look().
    property real used: report.percentageFileSystemUsed()

    function look() {
        used = report.percentageFileSystemUsed()
    }

    // Numbers with units, and times, keep their own direction beside each other.
    function isolated(text) {
        return ControlsStyle.mirrored ? "\u2068" + text + "\u2069" : text
    }

    function timeText(time) {
        return isolated(time.toLocaleString(Qt.locale(), Locale.ShortFormat))
    }

    // "34.5 kB"; decimal, like the sizes of drives.
    function sizeText(bytes) {
        const units = [qsTr("B"), qsTr("kB"), qsTr("MB"), qsTr("GB")]
        let unit = 0
        for (; bytes >= 999.5 && unit < units.length - 1; ++unit)
            bytes /= 1000
        const decimals = unit > 0 && bytes < 99.95 ? 1 : 0
        return isolated(qsTr("%1 %2").arg(Number(bytes).toLocaleString(Qt.locale(), "f", decimals)).arg(units[unit]))
    }

    // The service writes "default" where nothing is set.
    function known(text) {
        return text === undefined || text === "default" ? "" : text
    }
}
