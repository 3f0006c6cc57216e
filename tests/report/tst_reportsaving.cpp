#include "reportfixture.h"

#include "document/reportmetadata.h"
#include "report/saving/reportrecord_p.h"

#include <ctime>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// Called when the library syncs a file, which is after it has checked whether the name is free.
std::function<void()> whileSyncing;

/// How many attempts to lock a folder failed because another process holds the lock.
std::optional<int> attempts;

/// The course of a save: every virtual, signal, action, notice and dialog, in order.
QStringList events;

/// A derived controller that overrides everything.
class Recorder : public Report
{
public:
#define RECORDED(type, name, parameters, arguments) \
    type name parameters override \
    { \
        events << #name; \
        return Report::name arguments; \
    }
    RECORDED(bool, save, (bool overwrite), (overwrite))
    RECORDED(QString, generateTxtReport, (), ())
    RECORDED(QString, generateJsonReport, (), ())
    RECORDED(QString, generateXmlReport, (), ())
    RECORDED(QString, generateJobManagerReport, (), ())
    RECORDED(QString, generateHtmlReport, (), ())
    RECORDED(QByteArray, generatePDFReport, (), ())
    RECORDED(bool, writeJsonReport, (const QString& path, bool overwrite), (path, overwrite))
    RECORDED(bool, writeXmlReport, (const QString& path, bool overwrite), (path, overwrite))
    RECORDED(QString, getCdmTestType, (), ())
    RECORDED(QString, getCdmTestLabel, (), ())
    RECORDED(bool, writeTextReport, (const QString& path, const QString& text, const QString& suffix, bool overwrite),
            (path, text, suffix, overwrite))
    RECORDED(void, settingsLoaded, (), ())
    RECORDED(void, prepareDocument, (), ())
    RECORDED(bool, ensureValidJobData, (), ())
    RECORDED(void, updateJobTestMetadata, (), ())
    RECORDED(bool, keepsReportName, (), ())
#undef RECORDED
    using Report::syncedReports;
    using Report::unsyncedReports;
    void setUp()
    {
        for (int format = 0; format <= 5; ++format)
            setFormatApplicable(format, true);
        auto* jobInfo = new BoolUiData;
        jobInfo->setAttributes({{"name", "includeJobInfo"}, {"type", "bool"}});
        jobInfo->setValue(true);
        addSetting(jobInfo);
        Report::getSetting("reportName")->setValue("a");
        Report::getSetting("reportFormat")->setValue(5);
    }
    KivData* getSetting(const QString& name) override
    {
        events << "getSetting " + name;
        return Report::getSetting(name);
    }
    QString getSaveFilePath(const QString& name, const QString& suffix) override
    {
        events << "getSaveFilePath " + suffix;
        return Report::getSaveFilePath(name, suffix);
    }
    void saveStarted(const QString& name) override
    {
        const QByteArray stored = contentsOf(qEnvironmentVariable("UIUTILS_ROOT") + uiutils::reportSettingsPath(getFolder()));
        events << (stored.contains(name.toUtf8()) ? "saveStarted " : "saveStarted without settings ") + name;
    }
    void reportWritten(const QString& path) override { events << "reportWritten " + path; }
    void overwriteAsked(const QString& path) override { events << "overwriteAsked " + path; }
    void overwriteDeclined(const QString& path) override { events << "overwriteDeclined " + path; }
    void saveSucceeded(const QString& path) override { events << "saveSucceeded " + path; }
    void saveFailed(const QString& name) override { events << "saveFailed " + name; }
    void writeMetadata(const QString& path, const QString& format) override
    {
        events << "writeMetadata " + path + " " + format;
        Report::writeMetadata(path, format);
    }
};

/// Runs the process in another time zone.
class OtherZone
{
public:
    explicit OtherZone(const char* name) { set(name); }
    ~OtherZone() { set(m_before); }
    Q_DISABLE_COPY_MOVE(OtherZone)

private:
    static void set(const QByteArray& name)
    {
        qputenv("TZ", name);
        ::tzset();
    }

    QByteArray m_before = qgetenv("TZ");
};

} // namespace

/// Replaces the C library's function.
extern "C" int fsync(int fd)
{
    struct stat file = {};
    if (whileSyncing && ::fstat(fd, &file) == 0 && S_ISREG(file.st_mode))
        std::exchange(whileSyncing, nullptr)();
    return int(::syscall(SYS_fsync, fd));
}

/// The same: another process holds the lock while attempts are counted.
extern "C" int flock(int fd, int operation) noexcept
{
    struct stat file = {};
    const bool isHeld = attempts && ::fstat(fd, &file) == 0 && S_ISDIR(file.st_mode);
    if (!isHeld)
        return int(::syscall(SYS_flock, fd, operation));
    ++*attempts;
    errno = EWOULDBLOCK;
    return -1;
}

/// The operations of a controller: saving, asking, notifying, passing on.
class ReportSavingTest : public ReportFixture
{
    Q_OBJECT

    QStringList noSyncItem() const
    {
        return basemgr()->item(":config:basemgr:system:ss_nosync:stringARRAY:")->getValue().toStringList();
    }

private Q_SLOTS:
    void aCompleteSave()
    {
        writeFile(onDisk("/mnt/usb/a.xml"), "old");
        plug(2);
        QVERIFY(basemgr()->setActionHandler(":action:basemgr:system:report_update_name_configs:",
                [](const QString&, QString*) { return events += "action report_update_name_configs", true; }));
        connect(manager(), &QAbstractItemModel::rowsInserted, this, [] {
            events << "tray " + manager()->data(manager()->index(0), KIVNotificationModelManager::MsgRole).toString().section('\n', 0, 0);
        });
        connect(manager(), &KIVNotificationModelManager::currentDialogChanged, this, [] {
            events << "dialog " + (manager()->currentDialog() ? manager()->currentDialog()->longLabel() : QString("-"));
        });
        connect(basemgr()->item(":config:basemgr:system:ss_nosync:stringARRAY:"), &KIVClientItem::valueChanged, this, [this] {
            events << "list " + QString::number(qobject_cast<KIVClientItem*>(sender())->getValue().toStringList().size());
        });
        const auto apart = qScopeGuard([this] { manager()->disconnect(this); });
        Recorder report;
        report.setUp();
        events.clear();
        const SignalLog emissions(&report, &events);
        connect(&report, &Report::reportOverwriteAccepted, [&] { report.save(true); });
        report.save(false);
        manager()->accept();
        // Kept by hand: one step in each line, in the order that pages and derived controllers rely on.
        const QStringList wanted = QString::fromUtf8(contentsOf(UIUTILS_TEST_DATA_DIR "/report/whole-save.txt"))
                                           .trimmed().split(QRegularExpression(", |\n"));
        for (int i = 0; i < qMin(events.size(), wanted.size()); ++i)
            QVERIFY2(events.at(i) == wanted.at(i), qPrintable(QString::number(i) + ": " + events.mid(i, 4).join(", ")));
        QCOMPARE(events.size(), wanted.size());
        QCOMPARE(names("/mnt/usb"), QStringList({"a.html", "a.json", "a.pdf", "a.txt", "a.xml"}));
        QCOMPARE(contentsOf(onDisk("/mnt/usb/a.json")), QByteArray("{ }"));
        QVERIFY(contentsOf(onDisk("/mnt/usb/a.xml")).startsWith("<?xml"));
        QCOMPARE(report.getLastSavedXML(), QString("/cust/public/reports/a.xml"));
        QCOMPARE(report.getOpenReportPath("a.txt"), QString("/cust/public/reports/a.txt"));
        QCOMPARE(report.getOpenReportPath("../reports/a"), QString());
        QCOMPARE(report.unsyncedReports().size(), 5);
        // The next save has one format, and a USB drive that is reported is searched for reports, too.
        QVERIFY(basemgr()->setValue(locationItem, 1));
        report.disconnect();
        report.Report::getSetting("reportFormat")->setValue(1);
        report.Report::getSetting("reportSync_SS")->setValue(true);
        report.setNotifiesTray(false);
        report.setCompressionEnabled(true);
        QVERIFY(report.save(true) && report.save(true));
        QCOMPARE(report.getOpenReportPath("a.xml"), QString("/mnt/usb/a.xml.gz"));
        QCOMPARE(report.getReportFiles().size(), 5);
        QCOMPARE(report.getLastSavedXML(), QString("/mnt/usb/a.xml.gz"));
        QVERIFY(events.constLast().startsWith("saveSucceeded /mnt/usb/a.xml.gz") && manager()->count() == 5);
        QCOMPARE(report.syncedReports(), QStringList("/mnt/usb/a.xml.gz"));
        QVERIFY(basemgr()->setMounted("/mnt/usb", false));
        QVERIFY(report.getReportFiles().isEmpty());
    }

    void saves()
    {
        // A format, and what is written where all formats are offered; of all, none or the first two are.
        const std::pair<int, QStringList> rows[]{{0, {"a.pdf"}}, {3, {"a.txt"}}, {4, {"a.json"}}, {3, {"a.txt.gz"}},
                {5, {"a.pdf", "a.xml"}}, {6, {}}, {5, {}}};
        for (const auto& [format, files] : rows) {
            manager()->clear();
            QDir(onDisk("/cust/public/reports")).removeRecursively();
            Controller report("a", format);
            report.setFolder("f");
            for (int other = 0; other < 5; ++other)
                report.setFormatApplicable(other, format != 5 || (other < 2 && !files.isEmpty()));
            report.setCompressionEnabled(files == QStringList("a.txt.gz"));
            QSignalSpy generated(&report, &Report::reportGenerated);
            QCOMPARE(report.save(), !files.isEmpty());
            QCOMPARE(names("/cust/public/reports/f"), files);
            QCOMPARE(generated.count(), files.isEmpty() ? 0 : 1);
            QCOMPARE(manager()->count(), qMax(1, files.size()));
            QCOMPARE(manager()->currentDialog() != nullptr, files.isEmpty());
            QVERIFY(files.isEmpty() || generated.at(0).at(0).toString() == (format == 5 ? "a" : files.at(0)));
            // A controller without a text writes an empty file.
            QVERIFY(files != QStringList("a.txt") || contentsOf(onDisk("/cust/public/reports/f/a.txt")).isEmpty());
        }
    }

    void oneNoticeForAllFilesOfASave()
    {
        const auto titles = [] {
            QStringList found;
            for (int i = 0; i < manager()->count(); ++i)
                found += manager()->data(manager()->index(i), KIVNotificationModelManager::LongLabelRole).toString();
            return found;
        };
        Controller report("a", 5);
        report.setNotifiesOncePerSave(true);
        // The notice follows the last file, and comes also if one of them could not be written.
        for (const char* pages : {"%PDF-", ""}) {
            report.pages = pages;
            int written = -1;
            const auto counter = connect(manager(), &QAbstractItemModel::rowsInserted, this, [&] {
                if (titles().constFirst() == "Report Saved")
                    written = report.calls.count("written");
            });
            QCOMPARE(report.save(true), *pages != 0);
            disconnect(counter);
            QCOMPARE(written, *pages ? 5 : 9);
            QCOMPARE(titles().mid(0, 2), *pages ? QStringList("Report Saved") : QStringList({"Report Saved", "Write Error"}));
            QCOMPARE(titles().count("Report Saved"), *pages ? 1 : 2);
        }
        // A file that is written alone has its own.
        QVERIFY(report.writeTxtReport("/cust/public/reports/b.txt"));
        QCOMPARE(titles().count("Report Saved"), 3);
        report.setNotifiesTray(false);
        report.save(true);
        QCOMPARE(titles().count("Report Saved"), 3);
    }

    void overwritingIsAskedFor()
    {
        Controller report("a", 3);
        report.text = QString::fromUtf8("größer");
        QVERIFY(report.save());
        report.text = "new";
        QVERIFY(!report.save() && !report.save());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(manager()->waitingDialogs(), 0);
        QCOMPARE(dialogText(), QString("Do you want to overwrite report Internal:/reports/a.txt?"));
        report.saveOnYes();
        manager()->reject();
        QCOMPARE(contentsOf(onDisk("/cust/public/reports/a.txt")), QByteArray("größer"));
        QVERIFY(report.answers.isEmpty() && report.calls.count("declined") == 1 && !report.calls.contains("failed"));

        QVERIFY(!report.save());
        KIVNotification* question = manager()->currentDialog();
        manager()->accept();
        QCOMPARE(contentsOf(onDisk("/cust/public/reports/a.txt")), QByteArray("new"));
        // An answer counts once.
        report.overwriteAccepted(question);
        report.overwriteAccepted(nullptr);
        QCOMPARE(report.answers, QVector<bool>{true});
    }
    void twoProcessesSaveOneName()
    {
        // Mine compressed, theirs compressed: then both have the same name.
        for (const auto& [mine, theirs] : {std::pair(false, false), std::pair(true, true), std::pair(true, false)}) {
            const QString name = theirs ? "a.txt.gz" : "a.txt";
            Controller report("a", 3);
            report.setCompressionEnabled(mine);
            report.saveSettings();
            int status = -1;
            whileSyncing = [&status, theirs = theirs] {
                status = QProcess::execute(QCoreApplication::applicationFilePath(), {"--save", theirs ? "gzip" : "plain"});
            };
            QCOMPARE(report.save(), mine != theirs);
            QCOMPARE(status, 0);
            const QByteArray left = contentsOf(onDisk("/cust/public/reports/" + name));
            QVERIFY(theirs ? left.size() > 20 : left == "theirs");
            QCOMPARE(dialogTitle(), QString(mine == theirs ? "Report Exists" : ""));
            QVERIFY(!report.calls.contains("failed"));
            QVERIFY(QDir(onDisk("/cust/public/reports")).removeRecursively());
        }
        // A file that appears on the USB drive while the copy is written stays.
        plug(2);
        Controller report("a", 3);
        const std::function<void()> whileCopying = [&] {
            if (QDir(onDisk("/mnt/usb")).isEmpty(QDir::Files | QDir::Hidden))
                whileSyncing = whileCopying;
            else
                writeFile(onDisk("/mnt/usb/a.txt"), "theirs");
        };
        whileSyncing = whileCopying;
        QVERIFY(!report.save() && !whileSyncing);
        QCOMPARE(contentsOf(onDisk("/mnt/usb/a.txt")), QByteArray("theirs"));
    }
    void theQuestionNamesAllFiles()
    {
        plug(2);
        for (const char* path : {"/cust/public/reports/a.html", "/cust/public/reports/a.json.gz", "/mnt/usb/a.html", "/mnt/usb/b.html"})
            writeFile(onDisk(path), "old");
        const auto asked = [](int format, bool isCompressed) {
            Controller report("a", format);
            report.setCompressionEnabled(isCompressed);
            const bool isAsking = !report.save() && dialogText() == "Do you want to overwrite report Internal:/reports/a.html?";
            return isAsking ? manager()->currentDialog()->value("details").toString() : "no question: " + dialogText();
        };
        QCOMPARE(asked(5, false), QString("2 files would be overwritten:\nInternal:/reports/a.html\nUSB:/a.html"));
        QCOMPARE(asked(5, true), QString("3 files would be overwritten:\nInternal:/reports/a.html\nUSB:/a.html\nInternal:/reports/a.json.gz"));
        // The text of the question names the only one.
        QVERIFY(QFile::remove(onDisk("/mnt/usb/a.html")));
        QCOMPARE(asked(5, false), QString());
    }
    void roomIsLookedForBeforeTheQuestion()
    {
        struct Elsewhere : Controller
        {
            QString getSaveFilePath(const QString&, const QString&) override { return "/cust/public/reports/a.txt"; }
        } report;
        report.setUp("a", 3);
        writeFile(onDisk("/cust/public/reports/a.txt"), "old");
        // Nothing is free there.
        report.setBaseDirectory("/proc/");
        QVERIFY(!report.save());
        QCOMPARE(dialogTitle(), QString("Not Enough Space"));
        QCOMPARE(manager()->waitingDialogs(), 0);
        QCOMPARE(report.calls.constLast(), QString("failed"));
    }

    void answersReachTheAskerAlone()
    {
        Controller first("b", 3);
        Controller second("b", 3);
        writeFile(onDisk("/cust/public/reports/b.txt"), "");
        for (Controller* report : {&first, &second}) {
            QVERIFY(!report->save());
            QVERIFY(!Controller("b", 3).save());
        }
        QTRY_COMPARE(manager()->waitingDialogs(), 1);
        first.saveOnYes();
        second.saveOnYes();
        manager()->accept();
        QCOMPARE(first.answers, QVector<bool>{true});
        manager()->reject();
        QCOMPARE(second.answers, QVector<bool>());
        QCOMPARE(second.calls.count("declined"), 1);
        QCOMPARE(first.calls.count("declined"), 0);
    }

    void failuresAreReported()
    {
        for (const auto& [obstacle, filesLeft] : {std::pair("folder", 1), std::pair("file in the way", 0), std::pair("no pages", 0)}) {
            Controller report("a", obstacle == QByteArray("no pages") ? 0 : 3);
            report.setFolder(obstacle);
            report.pages.clear();
            const QString folder = onDisk("/cust/public/reports/") + obstacle;
            if (obstacle == QByteArray("folder"))
                QVERIFY(QDir().mkpath(folder + "/a.txt"));
            else if (filesLeft == 0 && obstacle != QByteArray("no pages"))
                writeFile(folder, "");
            QSignalSpy files(&report, &Report::reportFilesChanged);
            QVERIFY(!report.save(true));
            QCOMPARE(files.count(), 0);
            QCOMPARE(report.calls.constLast(), QString("failed"));
            QCOMPARE(dialogTitle(), QString("Write Error"));
            QVERIFY(!report.calls.contains("written"));
            QCOMPARE(namesIn(folder).size(), filesLeft);
        }
    }

    void problemsAreSaidWhereTheyAre()
    {
        Controller report("", 3);
        const SignalLog log(&report);
        KivData* const name = report.getSetting("reportName");
        const std::pair<QString, QString> rows[] {{QString(86, 'x'), "The name may have 50 characters, it has 86"}, {QString(50, 'x'), ""},
                {"Fibre 12.a-b_(?!)", "The name must not contain ?"}, {"a:b&c&", "The name must not contain : &"}, {"a\tb", "The name must not contain control characters"},
                {QString("a") + QChar(0x200b), "The name must not contain control characters"},
                {QString::fromUtf8("a😀b/"), QString::fromUtf8("The name must not contain 😀 /")}, {" a", "The name must not begin with a space"},
                {"a ", "The name must not end with a space"}, {"a.", "The name must not end with a point"}, {"..", "\"..\" is not a file name"},
                {"Com7.x", "Computers do not allow the name \"Com7.x\""}, {"com", ""}};
        for (const auto& [text, problem] : rows) {
            name->setValue(text);
            QCOMPARE(report.property("nameProblem").toString(), problem);
            QCOMPARE(report.fileNameProblem(text), problem);
        }
        QCOMPARE(log.names.count("problemsChanged"), 12);
        QCOMPARE(report.fileNameProblem(""), QString("The name is empty"));
        // A save with an empty name proposes one.
        name->setValue("");
        QCOMPARE(report.getNameProblem(), QString());

        // Without an expression the file system and the suffix set the limits, with one of another form nobody knows more.
        auto* own = new StringUiData(&report);
        own->setAttributes({{"name", "reportName"}, {"type", UiData::TYPE_STRING}, {"label", "Name"}});
        report.addSetting(own);
        own->setValue(QString(253, 'x'));
        QCOMPARE(report.getNameProblem(), QString("The name may have 251 characters, it has 253"));
        report.setCompressionEnabled(true);
        QCOMPARE(report.getNameProblem(), QString("The name may have 248 characters, it has 253"));
        own->setRegex("^[A-Z]{2}[0-9]+$");
        QCOMPARE(report.fileNameProblem("x7"), QString("The name does not have the required form"));
        QCOMPARE(report.fileNameProblem("x/7"), QString("The name must not contain /"));
        QCOMPARE(report.fileNameProblem("AB7"), QString());

        QCOMPARE(report.getFormatProblem(), QString());
        report.getSetting("reportFormat")->setValue(77);
        QCOMPARE(report.getFormatProblem(), QString("There is no format \"77\" to save the report in."));
        QCOMPARE(log.names.last(), QString("problemsChanged"));
        QVERIFY(!report.save());
    }

    void namesOfNoFileAreRejected()
    {
        const QVector<std::pair<QString, QString>> rows{{"..", "\"..\" is not a file name"},
                {"../../x", "The name must not contain /"},
                {QString("a") + QChar(QChar::Null) + "b", "The name must not contain a NUL character"},
                {QString(249, 'x'), "The name may have 248 characters, it has 249"},
                {QString(86, QChar(0xe01)), "The name may have 82 characters, it has 86"},
                {QString(16'000, 'x'), "The name may have 248 characters, it has 16000"}, {QString(248, 'x'), ""},
                {QString(244, 'x') + ".txt", ""}, {QString("e") + QChar(0x301) + QString(246, 'x'), ""}};
        for (const auto& [name, problem] : rows) {
            const bool isSaved = problem.isEmpty();
            Controller report(name, 3);
            report.setFolder("f");
            report.setCompressionEnabled(true);
            QCOMPARE(report.save(), isSaved);
            // Before a folder is created.
            QCOMPARE(QFile::exists(onDisk("/cust/public/reports/f")), isSaved);
            QVERIFY(QDir(onDisk("/cust/public/reports/f")).removeRecursively());
            QCOMPARE(dialogText(), problem);
        }
    }

    void recordsDescribeReports()
    {
        const OtherZone zone("Australia/Adelaide");
        QVERIFY(m_backend->loadFile(UIUTILS_SERVICES_DIR "/workflow_manager_app.service.json"));
        QVERIFY(basemgr()->setValue(":config:basemgr:system:report_cdm_testType:", "otdr"));
        Controller report("a", 5);
        report.setFolder("f");
        report.setCdmTestTypeAndLabel();
        const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
        QVERIFY(report.save());
        const QString folder = "/cust/private/reports/metadata/f/";
        QCOMPARE(names(folder), QStringList({"a.html.metadata", "a.json.metadata", "a.pdf.metadata", "a.txt.metadata",
                                        "a.xml.metadata"}));
        const QJsonObject record = QJsonDocument::fromJson(contentsOf(onDisk(folder + "a.pdf.metadata"))).object();
        QCOMPARE(record.size(), 5);
        QCOMPARE(record["type"].toString() + record["format"].toString(), QString("resultPDF"));
        QCOMPARE(record["originFilePath"].toString(), QString("/cust/public/reports/f/a.pdf"));
        const QString stamp = record["timeStamp"].toString();
        QVERIFY2(QRegularExpression("T.*[+](09|10):30$").match(stamp).hasMatch(), qPrintable(stamp));
        const QDateTime time = QDateTime::fromString(stamp, Qt::ISODate);
        QVERIFY(time >= before && time <= QDateTime::currentDateTime());
        QCOMPARE(record["info"].toObject(),
                QJsonObject({{"wo", "WO-88213"}, {"workflowId", "ethernet-turn-up"}, {"jobId", "WO-88213"},
                        {"testType", "otdr"}, {"testLabel", "None"}}));
        // A metadata record of yesterday's job would describe the wrong one.
        QVERIFY(basemgr()->setValue(activeItem, false));
        QVERIFY(m_backend->withdraw("orb.base.workflow_manager_app"));
        QVERIFY(report.save(true));
        QVERIFY(contentsOf(onDisk(folder + "a.txt.metadata")).contains("\"info\": {\n    }"));
        // A record that cannot be written blocks nothing.
        QVERIFY(QDir(onDisk("/cust/private/reports")).removeRecursively());
        writeFile(onDisk("/cust/private/reports"), "no folder");
        QVERIFY(report.save(true) && !manager()->currentDialog());
    }
    /// Somebody else closes the job and the work order while the first file is made: all files of the save are of the
    /// job in which it began. The page sees what is, and the next save is of no job.
    void jobIsClosedDuringASave()
    {
        QVERIFY(m_backend->loadFile(UIUTILS_SERVICES_DIR "/workflow_manager_app.service.json"));
        Controller report("a", 5);
        report.setFolder("f");
        report.setIncludeJobInfo(true);
        QString summary = "none was read";
        report.meanwhile = [&] {
            QVERIFY(basemgr()->setValue(activeItem, false));
            QVERIFY(basemgr()->setValue(":result:basemgr:jobmanager:jobID:", ""));
            m_backend->withdraw("orb.base.workflow_manager_app");
            summary = report.getJobSummary();
        };
        QVERIFY(report.save());
        QCOMPARE(summary, QString());
        const QString folder = "/cust/private/reports/metadata/f/";
        const QStringList records = names(folder);
        QCOMPARE(records.size(), 5);
        const auto infoOf = [&](const QString& name) {
            return QJsonDocument::fromJson(contentsOf(onDisk(folder + name))).object()["info"].toObject();
        };
        for (const QString& name : records) {
            QCOMPARE(infoOf(name)["jobId"].toString(), QString("WO-88213"));
            QCOMPARE(infoOf(name)["wo"].toString(), QString("WO-88213"));
        }
        const auto page = [&] { return contentsOf(onDisk("/cust/public/reports/f/a.html")); };
        QVERIFY(page().contains("WO-88213"));
        QVERIFY(report.save(true));
        QVERIFY(!page().contains("WO-88213"));
        QCOMPARE(infoOf("a.xml.metadata"), QJsonObject());
    }
    void timeStampsHaveTheLocalOffset()
    {
        const std::tuple<const char*, const char*, const char*> rows[]{
                {"Australia/Adelaide", "2025-07-01T00:00:00Z", "2025-07-01T09:30:00+09:30"},
                {"Australia/Adelaide", "2025-01-01T00:00:00Z", "2025-01-01T10:30:00+10:30"},
                {"America/St_Johns", "2025-01-01T00:00:00Z", "2024-12-31T20:30:00-03:30"},
                {"UTC", "2025-01-01T00:00:00Z", "2025-01-01T00:00:00+00:00"}};
        for (const auto& [name, moment, stamp] : rows) {
            const OtherZone zone(name);
            ReportMetadata record;
            uiutils::describeReport(&record, "/cust/public/reports/a.pdf", "PDF",
                    QDateTime::fromString(moment, Qt::ISODate).toLocalTime());
            QCOMPARE(record.timeStamp(), QString(stamp));
            // So have the proposed names; a minute may end in between.
            const auto minute = [] { return QDateTime::currentDateTime().toString("_ddMMyyhhmm"); };
            const QString before = minute();
            const QString proposed = Report().proposedFileName().chopped(2);
            QVERIFY2(proposed == before || proposed == minute(), qPrintable(proposed));
        }
    }
    void savesCanBeCancelled()
    {
        Controller report("a", 5);
        QVector<double> progress;
        connect(&report, &Report::progressChanged, &report, [&] {
            progress << report.getProgress();
            QVERIFY(report.isSaving());
            if (progress.size() == 2)
                report.cancel();
        });
        QSignalSpy generated(&report, &Report::reportGenerated);
        QVERIFY(!report.save());
        QCOMPARE(progress, QVector<double>({0.2, 0.4}));
        QCOMPARE(names("/cust/public/reports"), QStringList({"a.pdf", "a.xml"}));
        QVERIFY(!manager()->currentDialog());
        QCOMPARE(generated.count(), 0);
        QVERIFY(!report.isSaving());
        // What is written is added to the no-sync list all the same, and the next save is not cancelled.
        QVERIFY(contentsOf(listFile()).contains("a.xml"));
        QVERIFY(report.save(true));
        // After the last file there is nothing to cancel.
        report.disconnect(&report);
        connect(&report, &Report::progressChanged, &report, [&] {
            if (report.getProgress() == 1)
                report.cancel();
        });
        QVERIFY(report.save(true));
        // Before the first format counts, too.
        report.disconnect(&report);
        report.setUp("b", 3);
        connect(&report, &Report::savingChanged, &report, &Report::cancel);
        QVERIFY(!report.save());
        QVERIFY(!QFile::exists(onDisk("/cust/public/reports/b.txt")));
        QVERIFY(!manager()->currentDialog());
    }
    void aSaveReportsTheNameThatItBeganWith()
    {
        Controller report("a", 5);
        QSignalSpy generated(&report, &Report::reportGenerated);
        connect(&report, &Report::savingChanged, &report, [&] { report.getSetting("reportFormat")->setValue(0); });
        QVERIFY(report.save());
        QCOMPARE(generated, QList<QVariantList>{{QString("a")}});
    }
    void pagesReportTheirProgress()
    {
        Report report;
        ReportTemplate* document = &report.document();
        document->beginReport("t");
        document->beginTable("t", "T");
        for (int i = 0; i < 400; ++i)
            document->addRow("r", "row", i, {});
        document->endTable();
        document->endReport();
        report.getSetting("reportName")->setValue("a");
        QVector<double> progress;
        connect(&report, &Report::progressChanged, &report, [&] { progress << report.getProgress(); });
        QVERIFY(report.save());
        QVERIFY2(progress.size() > 4, qPrintable(QString::number(progress.size())));
        QVERIFY(std::is_sorted(progress.cbegin(), progress.cend()));
        report.cancel();
        QVERIFY(!report.generatePDFReport().isEmpty());
        QCOMPARE(progress.constLast(), 1.0);
        connect(&report, &Report::progressChanged, &report, &Report::cancel);
        const QByteArray before = contentsOf(onDisk("/cust/public/reports/a.pdf"));
        QVERIFY(!report.save(true));
        QVERIFY(!manager()->currentDialog());
        QCOMPARE(contentsOf(onDisk("/cust/public/reports/a.pdf")), before);
        // While the page stays alive, it may delete the controller.
        report.disconnect();
        const QPointer<Report> dying(new Report);
        dying->document().adopt(*document);
        dying->setInteractive(true);
        connect(dying, &Report::progressChanged, dying, [&] { delete dying; });
        QVERIFY(!dying->save(true));
        QVERIFY(!dying);
    }

    void aNewSaveTakesTheQuestionBack()
    {
        Controller report("a", 3);
        QVERIFY(report.save());
        QVERIFY(!report.save());
        QSignalSpy accepted(&report, &Report::reportOverwriteAccepted);
        report.getSetting("reportName")->setValue("b");
        QVERIFY(report.save());
        // An answer now would overwrite "b", about which nobody was asked.
        QVERIFY(!manager()->currentDialog());
        manager()->accept();
        QCOMPARE(accepted.count(), 0);
    }

    void emptyNamesAndFoldersHaveDefaults()
    {
        Controller report("", 3);
        report.proposed.clear();
        report.setBaseDirectory(QString());
        QVERIFY(report.save());
        report.proposed = "1/10 GE";
        QVERIFY(report.save());
        QCOMPARE(names("/cust/public/reports"), QStringList({"1_10 GE.txt", "empty.txt"}));
    }

    void compressingReplacesThePlainReport()
    {
        Controller report("a", 3);
        QVERIFY(report.save());
        report.setCompressionEnabled(true);
        QVERIFY(!report.save());
        QCOMPARE(names("/cust/public/reports"), QStringList("a.txt"));
        QVERIFY(report.save(true));
        // The compressed one counts while reports are compressed.
        QVERIFY(!report.save());
        QCOMPARE(names("/cust/public/reports"), QStringList("a.txt.gz"));
        QCOMPARE(names("/cust/private/reports/metadata"), QStringList("a.txt.gz.metadata"));
        report.setCompressionEnabled(false);
        QVERIFY(report.save());
    }

    /// An application's format has all that the library's have, in the controllers that have added it.
    void applicationsAddFormats()
    {
        plug(2);
        Controller report;
        QByteArray csv = "1,2";
        const auto make = [&] { return csv; };
        QVERIFY(report.addFormat(100, "CSV", ".csv", make) && Controller().addFormat(100, "CSV", ".csv", make));
        const std::pair<int, const char*> rejected[]{{100, ".csv"}, {100, ".c"}, {101, ".csv"}, {101, ".pdf"}, {99, ".c"},
                {101, "c"}, {101, "."}, {101, ".gz"}, {101, "./c"}};
        for (const auto& [value, suffix] : rejected)
            QVERIFY2(!report.addFormat(value, "CSV", suffix, make), suffix);
        QVERIFY(!report.addFormat(101, "D", ".d", {}) && !Controller().addFormat(100, "Other", ".csv", make));
        Controller without("a", 100);
        QVERIFY(without.getSuffixForReport().isEmpty() && !without.save() && names("/cust/public/reports").isEmpty());
        manager()->accept();

        report.setUp("a", 100);
        QVERIFY(report.getSuffixForReport() == ".csv" && report.save() && !report.save());
        QCOMPARE(dialogText(), QString("Do you want to overwrite report Internal:/reports/a.csv?"));
        QCOMPARE(contentsOf(onDisk("/mnt/usb/a.csv")), csv);
        QCOMPARE(report.getReportFiles().at(0).toMap().value("format").toString(), QString("CSV"));
        QVERIFY(report.calls.contains("metadata CSV") && contentsOf(listFile()).contains("/a.csv\n"));
        csv.clear();
        QVERIFY(!report.save(true));
        QVERIFY(dialogTitle() == "Write Error" && contentsOf(onDisk("/cust/public/reports/a.csv")) == "1,2");

        csv = "3";
        report.setUp("b", 5);
        QVERIFY(report.save() && report.calls.filter("metadata").constLast() == "metadata CSV");
        QCOMPARE(names("/cust/public/reports").filter("b."), QStringList({"b.csv", "b.html", "b.json", "b.pdf", "b.txt", "b.xml"}));
        report.setFormatApplicable(100, false);
        report.setUp("c", 5);
        QVERIFY(report.save() && !QFile::exists(onDisk("/cust/public/reports/c.csv")));
    }

    /// CSV is offered on request, and then has all that other formats have; nothing else changes.
    void csv()
    {
        Controller without("a", 5);
        Controller report("a", 99);
        QVERIFY(report.getSuffixForReport().isEmpty() && !report.save());
        manager()->accept();
        QVERIFY(report.offerCsv(true) && !report.offerCsv() && without.save());
        QVERIFY(!names("/cust/public/reports").contains("a.zip"));
        ReportTemplate& document = report.document();
        document.beginReport("t");
        document.beginTable("t", "T");
        document.addRow("t", "A", 0.5, {});
        document.endTable();
        document.endReport();
        QVERIFY(report.save() && !report.save() && names("/cust/public/reports").contains("a.zip"));
        QCOMPARE(dialogText(), QString("Do you want to overwrite report Internal:/reports/a.zip?"));
        QVERIFY(report.calls.contains("metadata CSV") && contentsOf(listFile()).contains("/a.zip\n"));
        QProcess unzip;
        unzip.start("python3", {"-c", "import sys, zipfile; print(zipfile.ZipFile(sys.argv[1]).read('T.csv').decode()[1:])",
                                       onDisk("/cust/public/reports/a.zip")});
        QVERIFY(unzip.waitForFinished());
        QCOMPARE(unzip.readAllStandardOutput().simplified(), QByteArray("Name;Value A;0,5"));
    }

    void reportsStayFromTheCloudThoughOthersFail()
    {
        Controller report("a", 5);
        QVERIFY(QDir().mkpath(onDisk("/cust/public/reports/a.xml/x")));
        QVERIFY(!report.save(true));
        const QByteArray list = contentsOf(listFile());
        QVERIFY(list.contains("/a.pdf\n") && list.contains("/a.txt\n") && !list.contains("/a.xml\n"));
        // Nor does it matter that one cannot be compressed.
        report.setUp("b", 3);
        report.setCompressionEnabled(true);
        const auto restore = qScopeGuard([path = qgetenv("PATH")] { qputenv("PATH", path); });
        qputenv("PATH", "/nowhere");
        QSignalSpy files(&report, &Report::reportFilesChanged);
        QVERIFY(!report.save());
        QVERIFY(QFile::exists(onDisk("/cust/public/reports/b.txt")));
        QCOMPARE(files.count(), 1);
        QVERIFY(contentsOf(listFile()).contains("/cust/public/reports/b.txt\n"));
    }
    /// The steps: "+" saves without sync, "-" with sync. "!" removes the file.
    void theNoSyncListHasWhatIsNotSynced()
    {
        const std::pair<const char*, const char*> rows[]{{"+a.pdf", "a.pdf a.json"}, {"+a.pdf -a.pdf", ""},
                {"+a.pdf +a.xml -a.pdf", "a.json a.xml"}, {"+a.pdf -a.xml", "a.pdf a.json"},
                {"+a.pdf -a.json", "a.pdf"}, {"-a.json +a.pdf", "a.pdf"}, {"-a.json +a.pdf -a.pdf", ""},
                {"+a.pdf -a.json +a.xml", "a.pdf a.xml"}, {"+a.json +a.pdf -a.pdf", "a.json"},
                {"+a.pdf +a.json -a.pdf", "a.json"}, {"+a.json +a.pdf !a.json -a.pdf", ""},
                {"+a.txt !a.txt -a.txt.gz", ""}, {"+a.txt.gz -a.txt", "a.txt.gz a.txt.json"}, {"+b.c/a", "b.c/a b.c/a.json"}};
        Controller report;
        for (const auto& [steps, expected] : rows) {
            report.writeNoSyncListToFile({});
            QDir(onDisk("/cust/n")).removeRecursively();
            for (const QString& step : QString(steps).split(' ')) {
                const QString path = "/cust/n/" + step.mid(1);
                QVERIFY(step[0] == '!' ? QFile::remove(onDisk(path)) : !writeFile(onDisk(path), "").isEmpty());
                if (step[0] == '+')
                    report.addReportToNoSyncList(path);
                if (step[0] == '-')
                    report.removeReportFromNoSyncList(path);
            }
            QCOMPARE(contentsOf(listFile()).replace("/cust/n/", "").simplified(), QByteArray(expected));
            QCOMPARE(noSyncItem().join(' ').remove("/cust/n/"), QString(expected));
        }
        report.writeNoSyncListToFile({"/1", "/2", "/1"});
        QCOMPARE(contentsOf(listFile()), QByteArray("/1\n/2\n"));
        // The base manager is notified of a list that others have made.
        writeFile(listFile(), "/1\n/2\n/3.pdf\n/3.json\n");
        report.addReportToNoSyncList("/3.pdf");
        QCOMPARE(noSyncItem().size(), 4);
    }
    void aListThatCannotBeReadIsNotReplaced()
    {
        Controller report("a", 3);
        QVERIFY(QDir().mkpath(listFile() + "/x"));
        // The report is safe; the user must know that it may be synced.
        QVERIFY(report.save());
        QCOMPARE(dialogTitle(), QString("Sync"));
        manager()->accept();
        // A page that is deleted when its reports are saved takes the dialog with it; two reports are one failure.
        manager()->clear();
        {
            Controller leaving("b", 5);
            leaving.setNotifiesTray(false);
            QVERIFY(leaving.save());
        }
        QVERIFY(!manager()->currentDialog());
        QCOMPARE(manager()->count(), 1);
        QVERIFY(QDir(listFile()).removeRecursively());
        // A list of 1 MiB is full; a larger one was not written here.
        QByteArray full("/cust/public/caf\xe9\n\n/x\n/x\n");
        const QByteArray small = full;
        full.append(QByteArray(1024 * 1024 - full.size() - 1, 'x') + '\n');
        for (const QByteArray& foreign : {full, full + '\n'}) {
            writeFile(listFile(), foreign);
            report.addReportToNoSyncList("/cust/" + QString(100, 'y'));
            QVERIFY(dialogText().contains("more than 1 MiB"));
            manager()->accept();
            QCOMPARE(contentsOf(listFile()), foreign);
        }
        report.removeReportFromNoSyncList("/x");
        QCOMPARE(contentsOf(listFile()), full + '\n');
        manager()->accept();
        // A save that replaces it needs none of it, and solves the problem.
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Cannot read .*nosync.*: it has more than 1 MiB; it is replaced$"));
        report.writeNoSyncListToFile({"/z"});
        QCOMPARE(contentsOf(listFile()), QByteArray("/z\n"));
        QVERIFY(!manager()->currentDialog());
        writeFile(listFile(), small);
        report.addReportToNoSyncList("/cust/a\n/cust/b");
        QCOMPARE(dialogTitle(), QString("Sync"));
        QCOMPARE(contentsOf(listFile()), small);
        report.addReportToNoSyncList("/y");
        QCOMPARE(contentsOf(listFile()), QByteArray("/cust/public/caf\xe9\n/x\n/y\n/y.json\n"));
    }
    void aHeldListDelaysASaveOnce()
    {
        Controller report("a", 5);
        attempts = 0;
        QVERIFY(report.save());
        // Every half millisecond, for half a second.
        QVERIFY2(*attempts > 1 && *attempts <= 1001, qPrintable(QString::number(*attempts)));
        attempts.reset();
        QVERIFY(dialogText().contains("a.pdf, Internal:/reports/a.xml"));
        QCOMPARE(manager()->waitingDialogs(), 0);
        QVERIFY(!QFile::exists(listFile()));
    }

    void thePlatformNeedNotKeepTheName()
    {
        QVERIFY(basemgr()->setActionHandler(":action:basemgr:system:report_update_name_configs:",
                [](const QString&, QString*) { return events << "kept", true; }));
        events.clear();
        Controller report("a", 3);
        report.keepsName = false;
        QVERIFY(report.save());
        QCOMPARE(events, QStringList());
    }

    void viewerIsStarted()
    {
        const QString viewer = onDisk("/base/bin/pdf_viewer");
        writeFile(
                viewer, "#!/bin/sh\nprintf '%s\\n' \"$LANGUAGE\" \"$PWD\" \"$@\" > arguments.part\nmv arguments.part arguments\n");
        QVERIFY(QFile::setPermissions(viewer, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QVERIFY(QDir().mkpath(onDisk("/base/qml/pdf_viewer")));
        Report report;
        report.showPDF("/cust/a.PDF");
        report.showPDF("");
        report.showPDF("/cust/a b.pdf.gz");
        const QString arguments = onDisk("/base/qml/pdf_viewer/arguments");
        QTRY_VERIFY(QFile::exists(arguments));
        QCOMPARE(QString::fromUtf8(contentsOf(arguments)).split('\n'),
                QStringList({"en", onDisk("/base/qml/pdf_viewer"), "-plugin", "EvdevTouch:/dev/input/event1", "--dpy", "85",
                        "-s", onDisk("/cust/a b.pdf.gz"), "-t", "View Report", ""}));
        QVERIFY(QFile::remove(arguments));
        report.setTitle("Shown again");
        report.showPDF("");
        QTRY_VERIFY(QFile::exists(arguments));
        QVERIFY(contentsOf(arguments).endsWith("/cust/a b.pdf.gz\n-t\nShown again\n"));
    }

    void switchesReachTheWriters()
    {
        Report report;
        report.setTitle("Own title");
        writeTemplate("rows.json", ", 'table_0': {'node_type': 'table', 'title': 'T', 'num_columns': 1}");
        report.setTemplatePath("/cust/rows.json");
        QVERIFY(report.generateHtmlReport().contains("Own title"));
        const QVector<std::pair<const char*, QString>> switches{{"includeJobInfo", "Job Manager Information"},
                {"includeCustomerInfo", "Fjordside Clinic"}, {"showHardwareRevs", "EM-1010"},
                {"showSoftwareRevs", "Boot Loader"}};
        for (const auto& [name, text] : switches) {
            for (const bool isOn : {true, false}) {
                QVERIFY(report.setProperty(name, isOn));
                QVERIFY2(report.generateHtmlReport().contains(text) == isOn, name);
            }
        }
        // The XML report has the customer; the job's report has neither that nor the revisions.
        for (const bool isOn : {true, false}) {
            report.setIncludeCustomerInfo(isOn);
            QCOMPARE(report.generateXmlReport().contains("<CustomerInformation>"), isOn);
            QVERIFY(report.generateXmlReport().contains("<softwareInfo>"));
            const QString job = report.generateJobManagerReport();
            QVERIFY(job.contains("<TechnicianInformation>"));
            QVERIFY(!job.contains("CustomerInformation") && !job.contains("softwareInfo") && !job.contains("hardwareInfo"));
        }
        const auto paper = [&report] {
            const QRegularExpression box("/MediaBox\\s*\\[\\s*0[.0]* 0[.0]* ([0-9.]+) ([0-9.]+)\\s*\\]");
            const QByteArray file = report.generatePDFReport();
            const QRegularExpressionMatch match = box.match(QString::fromLatin1(file, file.size()));
            return QSizeF(match.captured(1).toDouble(), match.captured(2).toDouble());
        };
        QCOMPARE(paper(), QSizeF(612, 792));
        report.setOrientation("landscape");
        QCOMPARE(paper(), QSizeF(792, 612));
        QVERIFY(Report::m_reportItems.isEmpty());
    }
};

/// Saves as another process does, without a service.
int saveTheirs(bool compressed)
{
    Controller report("a", 3);
    report.text = "theirs";
    report.setCompressionEnabled(compressed);
    return report.save() ? 0 : 1;
}

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--save")
        return saveTheirs(QByteArray(argv[2]) == "gzip");
    ReportSavingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_reportsaving.moc"
