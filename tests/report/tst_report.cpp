#include "filesizelimit.h"

#include "module/uiutilsmodule.h"
#include "report/report.h"
#include "report/reportnaming_p.h"
#include "report/reportsettingsstore_p.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivnotificationmodelmanager.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaMethod>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <memory>
#include <sys/mount.h>
#include <sys/stat.h>

using Setter = std::function<void(Report&)>;
Q_DECLARE_METATYPE(Setter)

namespace {

const QString activeItem(":result:basemgr:jobmanager:isJobActive:");
const QString locationItem(":config:basemgr:system:saveLocation:");
const QString usbItem(":result:basemgr:system:usbAttached:");

KIVNotificationModelManager* manager()
{
    return KIVNotificationModelManager::instance();
}

bool writeFile(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
            && file.write(contents) == contents.size();
}

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

/// JSON text with ' for ".
QByteArray json(QByteArray text)
{
    return text.replace('\'', '"');
}

/// A derived controller that notes when it is called.
class Controller : public Report
{
public:
    QString generateTxtReport() override
    {
        // It may be gone afterwards.
        const QString result = text;
        if (const auto making = whileMaking)
            making();
        return result;
    }
    QString generateJsonReport() override { return json; }
    bool writeXmlReport(const QString& path, bool overwrite) override
    {
        calls << "writeXml";
        return Report::writeXmlReport(path, overwrite);
    }
    bool writeTextReport(const QString& path, const QString& contents, const QString& suffix, bool overwrite) override
    {
        calls << "writeText" + suffix;
        return Report::writeTextReport(path, contents, suffix, overwrite);
    }
    QByteArray generatePDFReport() override
    {
        const QByteArray result = pages;
        if (const auto making = whileMaking)
            making();
        return result;
    }
    QString proposedFileName() override { return proposed; }

    void setUp(const QString& name, int format)
    {
        for (int value = 0; value <= 5; ++value)
            setFormatApplicable(value, true);
        getSetting("reportName")->setValue(name);
        getSetting("reportFormat")->setValue(format);
    }
    using Report::addSetting;
    using Report::loadSettings;
    using Report::saveSettings;
    using Report::setFormatApplicable;

    QString text;
    QString json;
    QString proposed = "proposed";
    QByteArray pages = "%PDF-";
    QStringList calls;
    std::function<void()> whileMaking;
    bool keepsName = true;

protected:
    bool keepsReportName() override { return keepsName; }
    void saveStarted(const QString&) override { calls << "started"; }
    void prepareDocument() override { calls << "prepare"; }
    void reportWritten(const QString&) override { calls << "written"; }
    void writeMetadata(const QString& path, const QString& format) override
    {
        calls << "metadata " + format;
        Report::writeMetadata(path, format);
    }
    void saveSucceeded(const QString&) override { calls << "succeeded"; }
    void saveFailed(const QString&) override { calls << "failed"; }
    void overwriteDeclined(const QString&) override { calls << "declined"; }
};

/// Counts all notifiers of a controller, in the order of their emission.
class Emissions : public QObject
{
    Q_OBJECT

public:
    explicit Emissions(const Report& report)
    {
        const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("note()"));
        for (int i = Report::staticMetaObject.methodOffset(); i < Report::staticMetaObject.methodCount(); ++i) {
            const QMetaMethod method = Report::staticMetaObject.method(i);
            if (method.methodType() == QMetaMethod::Signal)
                QObject::connect(&report, method, this, slot);
        }
    }

    QStringList names;

private Q_SLOTS:
    void note() { names << sender()->metaObject()->method(senderSignalIndex()).name(); }
};

} // namespace

class ReportTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_backend;

    QString onDisk(const QString& path) const { return m_root->path() + path; }
    QStringList names(const QString& folder) const
    {
        return QDir(onDisk(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    kiv::embedded::EmbeddedService* basemgr() const { return m_backend->service("basemgr"); }
    void writeTemplate(const QString& name, const QByteArray& fields)
    {
        QVERIFY(writeFile(onDisk("/cust/" + name), json("{'node_type': 'report', 'tag': 'otdr'" + fields + "}")));
    }

private Q_SLOTS:
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        qputenv("UIUTILS_ROOT", QFile::encodeName(m_root->path()));
        qunsetenv("PLOV_SHORTLABEL");
        qunsetenv("PLOV_PROVIDER");
        m_backend = std::make_unique<kiv::embedded::EmbeddedBackend>();
        KIVBackend::setCurrent(m_backend.get());
        QVERIFY(m_backend->loadFile(UIUTILS_SERVICES_DIR "/basemgr.service.json"));
    }
    void cleanup()
    {
        manager()->clear();
        while (manager()->currentDialog())
            delete manager()->currentDialog();
        m_backend.reset();
    }

    void settersTellOfChangesAlone_data()
    {
        QTest::addColumn<Setter>("set");
        QTest::addColumn<QStringList>("emissions");
        const auto add = [](const char* name, const Setter& set, const QStringList& emissions) {
            QTest::newRow(name) << set << emissions;
        };
        const QStringList folder{"folderChanged", "reportFilesChanged", "saveLocationChanged"};
        add(
                "tag", [](Report& r) { r.setTag("x"); }, QStringList("tagChanged") + folder);
        add(
                "folder", [](Report& r) { r.setFolder("x"); }, folder);
        add("title", [](Report& r) { r.setTitle("x"); }, {"titleChanged"});
        add("subject", [](Report& r) { r.setSubject("x"); }, {"subjectChanged"});
        add("orientation", [](Report& r) { r.setOrientation("landscape"); }, {"orientationChanged"});
        add("file", [](Report& r) { r.setCanWriteToFile(true); }, {"canWriteToFileChanged"});
        add("job", [](Report& r) { r.setCanWriteToJobManager(true); }, {"canWriteToJobManagerChanged"});
        add("job info", [](Report& r) { r.setIncludeJobInfo(true); }, {"includeJobInfoChanged"});
        add("hardware", [](Report& r) { r.setShowHardwareRevs(false); }, {"showHardwareRevsChanged"});
        add("software", [](Report& r) { r.setShowSoftwareRevs(false); }, {"showSoftwareRevsChanged"});
        add("schema", [](Report& r) { r.setJobSchema("x"); }, {"jobSchemaChanged"});
        add("screenshots", [](Report& r) { r.setScreenshotList({"x"}); }, {"screenshotListChanged"});
        add("customer", [](Report& r) { r.setIncludeCustomerInfo(true); }, {});
        add("tray", [](Report& r) { r.setNotifiesTray(false); }, {});
    }
    void settersTellOfChangesAlone()
    {
        QFETCH(Setter, set);
        Report report;
        Emissions emissions(report);
        set(report);
        set(report);
        QTEST(emissions.names, "emissions");
    }

    void templateStandsBehindTheProperties()
    {
        Report report;
        QCOMPARE(report.getOrientation(), QString("portrait"));
        QCOMPARE(report.getTitle(), QString());
        writeTemplate("a.json",
                ", 'title': 'Template', 'subject': 'S', 'orientation': 'landscape', "
                "'canWriteToFile': 'true', 'canWriteToJobManager': 'true'");
        Emissions emissions(report);
        report.setTemplatePath("/cust/a.json");
        QCOMPARE(emissions.names,
                QStringList({"templatePathChanged", "tagChanged", "orientationChanged", "titleChanged", "subjectChanged",
                        "reportFilesChanged", "canWriteToJobManagerChanged", "canWriteToFileChanged"}));
        QCOMPARE(report.getTitle() + report.getSubject() + report.getOrientation(), QString("TemplateSlandscape"));
        QCOMPARE(report.getTag() + "," + report.getFolder(), QString("otdr,otdr"));
        QVERIFY(report.getCanWriteToFile());
        QVERIFY(report.getCanWriteToJobManager());
        report.setCanWriteToFile(false);
        QVERIFY(!report.getCanWriteToFile());

        // One that cannot be read changes nothing.
        emissions.names.clear();
        QVERIFY(writeFile(onDisk("/cust/torn.json"), json("{'tag': 'x'")));
        report.setTemplatePath("/cust/torn.json");
        report.setTemplatePath("/cust/missing.json");
        QCOMPARE(emissions.names, QStringList());
        QCOMPARE(report.getTitle() + report.getTemplatePath(), QString("Template/cust/a.json"));
    }

    void servicesAreFollowed()
    {
        Report report;
        report.setCanWriteToJobManager(true);
        Emissions emissions(report);
        QVERIFY(basemgr()->setValue(activeItem, false));
        QTRY_COMPARE(emissions.names, QStringList({"canWriteToJobManagerChanged", "jobSummaryChanged"}));
        QVERIFY(!report.getCanWriteToJobManager());
        emissions.names.clear();
        QVERIFY(basemgr()->setValue(":result:basemgr:jobmanager:jobID:", "2"));
        QTRY_COMPARE(emissions.names, QStringList({"jobSummaryChanged"}));
        emissions.names.clear();
        QVERIFY(basemgr()->setValue(usbItem, true));
        QVERIFY(basemgr()->setValue(locationItem, 1));
        QTRY_COMPARE(emissions.names, QStringList({"saveLocationChanged", "saveLocationChanged"}));
        QCOMPARE(report.getSaveLocation(), QString("USB:/"));
        QCOMPARE(report.getSaveFilePath("a", ".pdf"), QString("/mnt/usb/a.pdf"));
        QVERIFY(basemgr()->setValue(usbItem, false));
        QCOMPARE(report.getSaveLocation(), QString("Internal:/reports/"));

        // A service that comes back has items of its own.
        basemgr()->setReachable(false);
        basemgr()->setReachable(true);
        QCoreApplication::processEvents();
        emissions.names.clear();
        QVERIFY(basemgr()->setValue(activeItem, true));
        QTRY_COMPARE(emissions.names, QStringList({"canWriteToJobManagerChanged", "jobSummaryChanged"}));
    }

    void testTypeAndLabel()
    {
        Report report;
        report.setCdmTestTypeAndLabel();
        QCOMPARE(report.getCdmTestType() + report.getCdmTestLabel(), QString("noneNone"));
        QVERIFY(basemgr()->setValue(":config:basemgr:system:report_cdm_testType:", "OTDR"));
        report.setCdmTestTypeAndLabel();
        QCOMPARE(report.getCdmTestType() + report.getCdmTestLabel(), QString("OTDRNone"));
    }

    void names_data()
    {
        QTest::addColumn<QString>("given");
        QTest::addColumn<bool>("isAccepted");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("folder");
        QTest::newRow("one") << "a" << true << "a.pdf"
                             << "a/";
        QTest::newRow("50") << QString(50, 'a') << true << QString(50, 'a') + ".pdf" << QString(50, 'a') + "/";
        QTest::newRow("51") << QString(51, 'a') << false << QString(51, 'a') + ".pdf" << QString(51, 'a') + "/";
        QTest::newRow("dots") << ".." << true << "_.pdf"
                              << "_/";
        QTest::newRow("more dots") << "..." << true << "....pdf"
                                   << ".../";
        QTest::newRow("climbing") << "../x" << false << ".._x.pdf"
                                  << "_/x/";
        QTest::newRow("climbing inside") << "x/../../y" << false << "x_.._.._y.pdf"
                                         << "x/_/_/y/";
        QTest::newRow("from the root") << "/etc" << false << "_etc.pdf"
                                       << "etc/";
        QTest::newRow("line feed") << "a\nb" << true << "a_b.pdf"
                                   << "a_b/";
        QTest::newRow("control") << QString::fromLatin1("a\0\x1b\x7f", 4) << false << "a___.pdf"
                                 << "a___/";
        QTest::newRow("suffixed") << "a.pdf" << true << "a.pdf"
                                  << "a.pdf/";
        QTest::newRow("other case") << "a.PDF" << true << "a.PDF.pdf"
                                    << "a.PDF/";
        QTest::newRow("letters") << QString::fromUtf8("Größe 1") << true << QString::fromUtf8("Größe 1.pdf")
                                 << QString::fromUtf8("Größe 1/");
    }
    void names()
    {
        QFETCH(QString, given);
        Report report;
        QString entered = given;
        int position = 0;
        const QValidator* validator = qobject_cast<UiData*>(report.getSetting("reportName"))->getValidator();
        QTEST(validator->validate(entered, position) == QValidator::Acceptable, "isAccepted");
        QTEST(uiutils::reportPath("", given, ".pdf").mid(1), "file");
        QTEST(uiutils::reportFolder("/b", "", given).mid(3), "folder");
    }

    void proposedNamesAndFolders()
    {
        const QDateTime time(QDate(2025, 3, 3), QTime(14, 5, 9));
        QCOMPARE(uiutils::proposedReportName("Fiber Test", time), QString("Fiber_Test_030325140509"));
        QCOMPARE(uiutils::proposedReportName("R&D\r\n", time), QString("RD___030325140509"));
        QVERIFY(QRegularExpression("^_\\d{12}$").match(Report().proposedFileName()).hasMatch());
        QCOMPARE(uiutils::reportFolder("/b", "Pro/../v", "a/b"), QString("/b/Pro/_/v/a/b/"));
        QCOMPARE(uiutils::reportFolder("/b/", "Prov", ""), QString("/b/"));
        QCOMPARE(uiutils::reportSettingsPath("otdr"), QString("/cust/private/lastconfigs/reportSettings/otdr.json"));
    }

    void formatsAndSuffixes()
    {
        Controller report;
        QStringList suffixes;
        for (int format = -1; format <= 6; ++format) {
            report.getSetting("reportFormat")->setValue(format);
            suffixes << report.getSuffixForReport();
            const QVector<bool> answers{
                    report.isPDF(), report.isXml(), report.isHtml(), report.isText(), report.isJson(), report.isAll()};
            QCOMPARE(answers.indexOf(true), format > 5 ? -1 : format);
            QCOMPARE(answers.count(true), format < 0 || format > 5 ? 0 : 1);
        }
        QCOMPARE(suffixes, QStringList({"", ".pdf", ".xml", ".html", ".txt", ".json", "", ""}));
        report.getSetting("reportFormat")->setValue(QVariant());
        QCOMPARE(report.getFormat(), -1);
    }

    void settingsSurvive()
    {
        Controller first;
        first.setFolder("otdr/a");
        first.setUp("mine", 2);
        first.getSetting("reportSync_SS")->setValue(true);
        first.saveSettings();
        const QString path = onDisk("/cust/private/lastconfigs/reportSettings/otdr/a.json");
        QCOMPARE(QJsonDocument::fromJson(contentsOf(path)).object(),
                QJsonObject({{"reportName", "mine"}, {"reportFormat", 2}, {"reportSync_SS", true}}));
        Controller second;
        second.setFolder("otdr/a");
        second.setFormatApplicable(2, true);
        QTRY_COMPARE(second.getSetting("reportName")->getValue(), QVariant("mine"));
        QCOMPARE(second.getFormat(), 2);
        QCOMPARE(second.getSetting("reportSync_SS")->getValue(), QVariant(true));
        // What is not offered is not taken either.
        Controller third;
        third.setFolder("otdr/a");
        third.loadSettings();
        QCOMPARE(third.getFormat(), 0);
    }

    void brokenSettings_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QString>("log");
        QTest::addColumn<QString>("name");
        const QString parse = "ERROR: Could not parse Json text:\n%1";
        QTest::newRow("empty") << QByteArray("") << parse.arg("illegal value") << "";
        QTest::newRow("torn") << json("{'reportName': 'a") << parse.arg("unterminated string") << "";
        QTest::newRow("list") << QByteArray("[1]") << parse.arg("the file holds no object") << "";
        QTest::newRow("huge") << QByteArray(uiutils::largestReportSettings + 1, ' ') << parse.arg("the file is too large")
                              << "";
        QTest::newRow("wrong shapes") << json("{'reportName': {}, 'reportFormat': '1', 'reportSync_SS': 7}") << ""
                                      << "";
        QTest::newRow("forbidden values") << json("{'reportName': '../x', 'reportFormat': 99}") << ""
                                          << "";
        QTest::newRow("halves and strangers") << json("{'reportFormat': 1.5, 'x': 1, 'reportName': 'ok'}") << ""
                                              << "ok";
    }
    void brokenSettings()
    {
        QFETCH(QByteArray, contents);
        QFETCH(QString, log);
        Controller report;
        QVERIFY(writeFile(onDisk("/cust/private/lastconfigs/reportSettings/.json"), contents));
        if (!log.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, qPrintable(log));
        report.loadSettings();
        QTEST(report.getSetting("reportName")->getValue().toString(), "name");
        QCOMPARE(report.getFormat(), 0);
        QCOMPARE(report.getSetting("reportSync_SS")->getValue().toBool(), false);
    }
    void ownSettings_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("stored") << json("{'own': 9}") << QVariant(9);
        QTest::newRow("not stored") << QByteArray("{}") << QVariant(7);
        QTest::newRow("null") << json("{'own': null}") << QVariant(7);
        QTest::newRow("object") << json("{'own': {'a': 1}}") << QVariant(7);
        QTest::newRow("text") << json("{'own': 'many'}") << QVariant(7);
        QTest::newRow("out of range") << json("{'own': 11}") << QVariant(7);
    }
    void ownSettings()
    {
        QFETCH(QByteArray, contents);
        Controller report;
        auto* own = new UiData;
        own->setAttributes({{"name", "own"}, {"type", UiData::TYPE_INT}, {"minRange", 0}, {"maxRange", 10}});
        own->setValue(7);
        report.addSetting(own);
        QVERIFY(writeFile(onDisk("/cust/private/lastconfigs/reportSettings/.json"), contents));
        report.loadSettings();
        QTEST(own->getValue(), "value");
    }
    void unreachableSettings()
    {
        Controller report;
        const QString path = "/cust/private/lastconfigs/reportSettings/.json";
        QTest::ignoreMessage(QtWarningMsg, qPrintable("Could not open " + path + " for reading"));
        report.loadSettings();
        QVERIFY(QDir().mkpath(onDisk(path)));
        QTest::ignoreMessage(QtWarningMsg, qPrintable("Could not open " + path + " for reading"));
        report.loadSettings();
        QTest::ignoreMessage(QtWarningMsg, qPrintable("Could not open " + path + " for writing"));
        report.saveSettings();
        // Nobody writes into this pipe.
        QVERIFY(QDir().rmdir(onDisk(path)) && ::mkfifo(onDisk(path).toLocal8Bit().constData(), 0600) == 0);
        QTest::ignoreMessage(QtWarningMsg, qPrintable("Could not open " + path + " for reading"));
        report.loadSettings();
    }

    void saves_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<QStringList>("files");
        QTest::newRow("pdf") << 0 << QStringList("a.pdf");
        QTest::newRow("text") << 3 << QStringList("a.txt");
        QTest::newRow("json") << 4 << QStringList("a.json");
        QTest::newRow("all that are offered") << 5 << QStringList({"a.pdf", "a.xml"});
        QTest::newRow("none") << 6 << QStringList();
    }
    void saves()
    {
        QFETCH(int, format);
        QFETCH(QStringList, files);
        Controller report;
        report.setFolder("f");
        report.setUp("a", format);
        for (int other : {2, 3, 4})
            report.setFormatApplicable(other, format != 5);
        QSignalSpy generated(&report, &Report::reportGenerated);
        QCOMPARE(report.save(), !files.isEmpty());
        QCOMPARE(names("/cust/public/reports/f"), files);
        QCOMPARE(generated.count(), files.isEmpty() ? 0 : 1);
        QCOMPARE(manager()->count(), files.size());
        if (!files.isEmpty())
            QCOMPARE(generated.at(0).at(0).toString(), format == 5 ? "a" : "/cust/public/reports/f/" + files.at(0));
        if (format == 3)
            QCOMPARE(contentsOf(onDisk("/cust/public/reports/f/a.txt")), QByteArray());
        if (format == 4)
            QCOMPARE(contentsOf(onDisk("/cust/public/reports/f/a.json")), QByteArray("{ }"));
    }

    void derivedControllersIntercept()
    {
        Controller report;
        report.setUp("", 1);
        Emissions emissions(report);
        QVERIFY(report.save());
        QCOMPARE(report.calls,
                QStringList({"started", "prepare", "writeXml", "writeText.xml", "written", "metadata XML", "succeeded"}));
        QCOMPARE(emissions.names,
                QStringList({"savingChanged", "lastSavedXMLChanged", "reportFilesChanged", "saveLocationChanged",
                        "progressChanged", "savingChanged", "reportGenerated"}));
        QCOMPARE(report.getLastSavedXML(), QString("/cust/public/reports/proposed.xml"));
        QCOMPARE(manager()->data(manager()->index(0), KIVNotificationModelManager::MsgRole).toString(),
                QString("Report proposed saved\nFolder: reports"));
        QCOMPARE(report.getOpenReportPath("proposed"), report.getLastSavedXML());
        QCOMPARE(report.getOpenReportPath("proposed.xml"), report.getLastSavedXML());
        QCOMPARE(report.getOpenReportPath("../reports/proposed"), QString());
        report.setNotifiesTray(false);
        report.setCompressionEnabled(true);
        report.calls.clear();
        QVERIFY(report.save(true));
        QCOMPARE(report.getLastSavedXML(), QString("/cust/public/reports/proposed.xml.gz"));
        QCOMPARE(manager()->count(), 1);
    }

    void overwritingIsAskedFor()
    {
        Controller report;
        report.setUp("a", 3);
        report.text = QString::fromUtf8("größer");
        QVERIFY(report.save());
        report.text = "new";
        QSignalSpy accepted(&report, &Report::reportOverwriteAccepted);
        QVERIFY(!report.save());
        QVERIFY(!report.save());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const QString path = onDisk("/cust/public/reports/a.txt");
        QCOMPARE(contentsOf(path), QByteArray("größer"));
        QVERIFY(manager()->currentDialog());
        QCOMPARE(manager()->waitingDialogs(), 0);
        QCOMPARE(manager()->currentDialog()->msg(), QString("Do you want to overwrite report Internal:/reports/a.txt?"));
        manager()->reject();
        QCOMPARE(accepted.count(), 0);
        QCOMPARE(report.calls.count("declined"), 1);
        QVERIFY(!report.calls.contains("failed"));

        QVERIFY(!report.save());
        connect(&report, &Report::reportOverwriteAccepted, &report, [&report] { QVERIFY(report.save(true)); });
        KIVNotification* question = manager()->currentDialog();
        manager()->accept();
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(contentsOf(path), QByteArray("new"));
        // An answer counts once.
        report.overwriteAccepted(question);
        report.overwriteAccepted(nullptr);
        QCOMPARE(accepted.count(), 1);
    }
    void compressedTwinsCount()
    {
        Controller report;
        report.setUp("a", 3);
        QVERIFY(writeFile(onDisk("/cust/public/reports/a.txt.gz"), "x"));
        report.setCompressionEnabled(true);
        QVERIFY(!report.save());
        QVERIFY(manager()->currentDialog());
        report.setCompressionEnabled(false);
        QVERIFY(report.save());
    }
    void answersReachTheAskerAlone()
    {
        Controller other;
        other.setUp("b", 3);
        QVERIFY(other.save());
        QVERIFY(!other.save());
        QSignalSpy accepted(&other, &Report::reportOverwriteAccepted);
        {
            Controller gone;
            gone.setUp("b", 3);
            QVERIFY(!gone.save());
            QCOMPARE(manager()->waitingDialogs(), 1);
        }
        QTRY_COMPARE(manager()->waitingDialogs(), 0);
        Controller second;
        second.setUp("b", 3);
        QVERIFY(!second.save());
        QSignalSpy secondAccepted(&second, &Report::reportOverwriteAccepted);
        manager()->accept();
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(secondAccepted.count(), 0);
        manager()->reject();
        QCOMPARE(secondAccepted.count(), 0);
        QCOMPARE(second.calls.count("declined"), 1);
        QCOMPARE(other.calls.count("declined"), 0);
    }

    void failuresAreTold_data()
    {
        QTest::addColumn<QString>("obstacle");
        for (const char* obstacle : {"folder", "file in the way", "full", "long", "no pages", "read-only"})
            QTest::newRow(obstacle) << obstacle;
    }
    void failuresAreTold()
    {
        QFETCH(QString, obstacle);
        Controller report;
        report.setFolder("f");
        const bool hasPages = obstacle != "no pages";
        const QString name = obstacle == "long" ? QString(150, QChar(0xe9)) : QString("a");
        report.setUp(name, hasPages ? 3 : 0);
        report.text = QString(10'000, 'x');
        report.pages.clear();
        const QString target = onDisk("/cust/public/reports/f/" + name + ".txt");
        QSignalSpy generated(&report, &Report::reportGenerated);
        QSignalSpy files(&report, &Report::reportFilesChanged);
        if (obstacle == "folder")
            QVERIFY(QDir().mkpath(target));
        if (obstacle == "file in the way")
            QVERIFY(writeFile(onDisk("/cust/public/reports/f"), ""));
        const QByteArray folder = QFile::encodeName(onDisk("/cust/public/reports/f"));
        const auto unmount = qScopeGuard([&] { ::umount2(folder.constData(), MNT_DETACH); });
        if (obstacle == "read-only") {
            QVERIFY(QDir().mkpath(onDisk("/cust/public/reports/f")));
            if (::mount("none", folder.constData(), "tmpfs", MS_RDONLY, "size=2m") != 0)
                QSKIP("Only those who may mount a drive can have one that is read-only.");
        }
        if (obstacle == "full") {
            QVERIFY(writeFile(target, "former"));
            const FileSizeLimit limit(4096);
            QVERIFY(!report.save(true));
        } else {
            QVERIFY(!report.save(true));
        }
        QCOMPARE(generated.count() + files.count(), 0);
        QCOMPARE(report.calls.constLast(), QString("failed"));
        QVERIFY(manager()->currentDialog());
        QCOMPARE(manager()->currentDialog()->longLabel(), QString("Write Error"));
        QVERIFY(!report.calls.contains("written"));
        if (obstacle == "full")
            QCOMPARE(contentsOf(target), QByteArray("former"));
        QCOMPARE(names("/cust/public/reports/f").size(), obstacle == "full" || obstacle == "folder" ? 1 : 0);
    }

    void fullDrivesAreToldBeforehand()
    {
        const QByteArray stick = QFile::encodeName(onDisk("/mnt/usb"));
        QVERIFY(QDir().mkpath(onDisk("/mnt/usb")));
        if (::mount("none", stick.constData(), "tmpfs", 0, "size=256k") != 0)
            QSKIP("Only those who may mount a drive can fill one.");
        const auto unmount = qScopeGuard([&] { ::umount2(stick.constData(), MNT_DETACH); });
        QVERIFY(writeFile(onDisk("/mnt/usb/half"), QByteArray(128 * 1024, 'x')));
        QVERIFY(basemgr()->setMounted("/mnt/usb/", true));
        Controller report;
        report.setUp("a", 3);
        const double used = report.percentageFileSystemUsed("/mnt/usb/not/there");
        QVERIFY2(used > 49 && used < 55, qPrintable(QString::number(used)));
        for (int location : {1, 2}) {
            QVERIFY(basemgr()->setValue(locationItem, location));
            QVERIFY(basemgr()->setValue(usbItem, true));
            QVERIFY(!report.save());
            QVERIFY(!report.save());
            QCOMPARE(manager()->currentDialog()->longLabel(), QString("Not Enough Space"));
            QCOMPARE(manager()->waitingDialogs(), 0);
            QCOMPARE(report.calls.constLast(), QString("failed"));
            QVERIFY(!QFile::exists(onDisk("/cust/public/reports/a.txt")) && names("/mnt/usb").size() == 1);
            // Without a stick nothing goes there.
            QVERIFY(basemgr()->setValue(usbItem, false));
            QVERIFY(report.save());
            QVERIFY(QFile::remove(onDisk("/cust/public/reports/a.txt")));
        }
    }

    void namesOfNoFileAreRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isSaved");
        QTest::newRow("up") << ".." << false;
        QTest::newRow("out") << "../../x" << false;
        QTest::newRow("below") << "a/b" << false;
        QTest::newRow("NUL") << QString("a") + QChar(QChar::Null) + "b" << false;
        QTest::newRow("256 bytes") << QString(249, 'x') << false;
        QTest::newRow("255 bytes") << QString(248, 'x') << true;
        QTest::newRow("255 bytes with its own suffix") << QString(244, 'x') + ".txt" << true;
    }
    void namesOfNoFileAreRefused()
    {
        QFETCH(QString, name);
        QFETCH(bool, isSaved);
        Controller report;
        report.setFolder("f");
        report.setUp("a", 3);
        report.setCompressionEnabled(true);
        report.getSetting("reportName")->setValue(name);
        if (report.getSetting("reportName")->getValue() != name) {
            report.getSetting("reportName")->setValue("");
            report.proposed = name;
        }
        QCOMPARE(report.save(), isSaved);
        QCOMPARE(QFile::exists(onDisk("/cust/public/reports/f")), isSaved);
        QCOMPARE(manager()->currentDialog() != nullptr, !isSaved);
        if (!isSaved)
            QCOMPARE(manager()->currentDialog()->longLabel(), QString("Write Error"));
    }

    void sticks_data()
    {
        QTest::addColumn<int>("location");
        QTest::addColumn<bool>("isAnnounced");
        QTest::addColumn<bool>("isMounted");
        QTest::addColumn<bool>("isSaved");
        QTest::addColumn<QStringList>("internal");
        QTest::addColumn<QStringList>("stick");
        const QStringList files{"a.txt.gz", "a.xml.gz"};
        QStringList recorded = files;
        for (const QString& file : files)
            recorded << file + ".metadata";
        recorded.sort();
        const QStringList none;
        QTest::newRow("internal") << 0 << true << true << true << files << none;
        QTest::newRow("stick") << 1 << true << true << true << none << recorded;
        QTest::newRow("no stick") << 1 << false << false << true << files << none;
        QTest::newRow("not told yet") << 1 << false << true << true << files << none;
        QTest::newRow("vanished") << 1 << true << false << false << none << none;
        QTest::newRow("both") << 2 << true << true << true << files << files;
        QTest::newRow("both, no stick") << 2 << false << false << true << files << none;
        QTest::newRow("both, vanished") << 2 << true << false << false << files << none;
    }
    void sticks()
    {
        QFETCH(int, location);
        QFETCH(bool, isAnnounced);
        QFETCH(bool, isMounted);
        QFETCH(bool, isSaved);
        QVERIFY(QDir().mkpath(onDisk("/mnt/usb")));
        QVERIFY(basemgr()->setValue(locationItem, location));
        QVERIFY(basemgr()->setValue(usbItem, isAnnounced));
        QVERIFY(basemgr()->setMounted("/mnt/usb", isMounted));
        Controller report;
        report.setUp("a", 5);
        for (int format : {0, 2, 4})
            report.setFormatApplicable(format, false);
        report.setCompressionEnabled(true);
        QSignalSpy generated(&report, &Report::reportGenerated);
        QCOMPARE(report.save(), isSaved);
        QCOMPARE(generated.count(), isSaved ? 1 : 0);
        QTEST(names("/cust/public/reports"), "internal");
        QTEST(names("/mnt/usb"), "stick");
        QCOMPARE(manager()->currentDialog() == nullptr, isSaved);
        // Two files that cannot be written are one mishap.
        QCOMPARE(manager()->waitingDialogs(), 0);
        int errors = 0;
        for (int i = 0; i < manager()->count(); ++i)
            errors += manager()->data(manager()->index(i), KIVNotificationModelManager::LongLabelRole) == "Write Error";
        QCOMPARE(errors, isSaved ? 0 : 1);
        // What lies on the stick is asked about as well.
        QVERIFY(!report.save() || !isSaved);
        if (location == 2 && isSaved && !names("/mnt/usb").isEmpty()) {
            // A twin of another form goes with what may be overwritten.
            QVERIFY(writeFile(onDisk("/mnt/usb/a.txt"), "plain"));
            QVERIFY(report.save(true));
            QTEST(names("/mnt/usb"), "stick");
            manager()->reject();
            QVERIFY(QDir(onDisk("/cust/public/reports")).removeRecursively());
            QVERIFY(!report.save());
            QVERIFY(manager()->currentDialog()->msg().contains("USB:/a.xml"));
        }
    }
    void anAgreementHoldsForItsPlaceAlone()
    {
        QVERIFY(writeFile(onDisk("/mnt/usb/a.txt"), "old"));
        QVERIFY(writeFile(onDisk("/cust/public/reports/a.txt"), "precious"));
        QVERIFY(basemgr()->setValue(locationItem, 1));
        QVERIFY(basemgr()->setValue(usbItem, true));
        QVERIFY(basemgr()->setMounted("/mnt/usb", true));
        Controller report;
        report.setUp("a", 3);
        QVERIFY(!report.save());
        QVector<bool> saved;
        connect(&report, &Report::reportOverwriteAccepted, &report, [&] { saved << report.save(true); });
        QVERIFY(basemgr()->setValue(usbItem, false));
        QVERIFY(basemgr()->setMounted("/mnt/usb", false));
        manager()->accept();
        QCOMPARE(saved, QVector<bool>{false});
        QVERIFY(manager()->currentDialog());
        QCOMPARE(manager()->currentDialog()->longLabel(), QString("Write Error"));
        QCOMPARE(contentsOf(onDisk("/cust/public/reports/a.txt")), QByteArray("precious"));
        QCOMPARE(contentsOf(onDisk("/mnt/usb/a.txt")), QByteArray("old"));
        // Another save is another question.
        QVERIFY(!report.save());
        QVERIFY(manager()->currentDialog());
    }

    void anAgreementHoldsForItsNameAlone()
    {
        Controller report;
        for (const char* name : {"a", "b"}) {
            report.setUp(name, 3);
            report.text = name;
            QVERIFY(report.save());
        }
        report.setUp("a", 3);
        QVERIFY(!report.save());
        report.getSetting("reportName")->setValue("b");
        QVector<bool> saved;
        connect(&report, &Report::reportOverwriteAccepted, &report, [&] { saved << report.save(true); });
        report.text = "new";
        manager()->accept();
        QCOMPARE(saved, QVector<bool>{false});
        QCOMPARE(contentsOf(onDisk("/cust/public/reports/b.txt")), QByteArray("b"));
        QVERIFY(manager()->currentDialog() && manager()->currentDialog()->msg().contains("b.txt"));
        manager()->accept();
        QCOMPARE(saved, QVector<bool>({false, true}));
        QCOMPARE(contentsOf(onDisk("/cust/public/reports/b.txt")), QByteArray("new"));
    }
    void sticksThatComeLateAreAskedAbout_data()
    {
        QTest::addColumn<int>("location");
        QTest::addColumn<int>("format");
        for (const int location : {1, 2}) {
            for (const int format : {0, 3})
                QTest::addRow("%d, format %d", location, format) << location << format;
        }
    }
    void sticksThatComeLateAreAskedAbout()
    {
        QFETCH(int, location);
        QFETCH(int, format);
        const QString name = format == 0 ? "a.pdf" : "a.txt";
        QVERIFY(writeFile(onDisk("/mnt/port/" + name), "precious"));
        QVERIFY(QDir().mkpath(onDisk("/mnt/usb")));
        QVERIFY(basemgr()->setValue(locationItem, location));
        QVERIFY(basemgr()->setValue(usbItem, true));
        Controller report;
        report.setUp("a", format);
        report.text = "%PDF-";
        report.whileMaking = [&] {
            QDir().rename(onDisk("/mnt/usb"), onDisk("/mnt/point"));
            QDir().rename(onDisk("/mnt/port"), onDisk("/mnt/usb"));
            basemgr()->setMounted("/mnt/usb", true);
        };
        QSignalSpy generated(&report, &Report::reportGenerated);
        QVERIFY(!report.save());
        QCOMPARE(contentsOf(onDisk("/mnt/usb/" + name)), QByteArray("precious"));
        QVERIFY(manager()->currentDialog());
        QCOMPARE(manager()->currentDialog()->longLabel(), QString("Report Exists"));
        QCOMPARE(manager()->currentDialog()->msg(), "Do you want to overwrite report USB:/" + name + "?");
        QCOMPARE(manager()->waitingDialogs(), 0);
        QCOMPARE(generated.count(), 0);
        report.whileMaking = nullptr;
        QVector<bool> saved;
        connect(&report, &Report::reportOverwriteAccepted, &report, [&] { saved << report.save(true); });
        manager()->accept();
        QCOMPARE(saved, QVector<bool>{true});
        QCOMPARE(contentsOf(onDisk("/mnt/usb/" + name)), QByteArray("%PDF-"));
    }
    void nothingIsPutWhereAStickWas()
    {
        QVERIFY(QDir().mkpath(onDisk("/mnt/usb")));
        QVERIFY(basemgr()->setValue(locationItem, 1));
        QVERIFY(basemgr()->setValue(usbItem, true));
        QVERIFY(basemgr()->setMounted("/mnt/usb", true));
        Controller report;
        report.setUp("a", 3);
        connect(&report, &Report::reportFilesChanged, &report, [&] { basemgr()->setMounted("/mnt/usb", false); });
        QVERIFY(report.save());
        QCOMPARE(names("/mnt/usb"), QStringList("a.txt"));
    }
    void foldersOnSticksAreMade()
    {
        QVERIFY(basemgr()->setMounted("/mnt/usb", true));
        QVERIFY(QDir().mkpath(onDisk("/mnt/usb")));
        Controller report;
        report.setUp("a", 3);
        report.setBaseDirectory("/mnt/usb/sites");
        report.setFolder("f");
        QVERIFY(report.save());
        QVERIFY(names("/mnt/usb/sites/f").contains("a.txt"));
        QVERIFY(basemgr()->setMounted("/mnt/usb", false));
        report.setFolder("g");
        QVERIFY(!report.save());
        QCOMPARE(names("/mnt/usb/sites"), QStringList("f"));
        // A report that is saved to the stick is its own copy.
        report.setFolder("");
        report.setBaseDirectory("/mnt/usb");
        QVERIFY(basemgr()->setMounted("/mnt/usb", true));
        QVERIFY(basemgr()->setValue(usbItem, true));
        QVERIFY(basemgr()->setValue(locationItem, 2));
        QVERIFY(report.save());
    }
    void recordsTellOfReports()
    {
        QVERIFY(m_backend->loadFile(UIUTILS_SERVICES_DIR "/workflow_manager_app.service.json"));
        QVERIFY(basemgr()->setValue(":config:basemgr:system:report_cdm_testType:", "otdr"));
        Controller report;
        report.setFolder("f");
        report.setUp("a", 5);
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
        QVERIFY2(QRegularExpression("T.*[+-]\\d\\d:\\d\\d$").match(stamp).hasMatch(), qPrintable(stamp));
        const QDateTime time = QDateTime::fromString(stamp, Qt::ISODate);
        QVERIFY(time >= before && time <= QDateTime::currentDateTime());
        QCOMPARE(record["info"].toObject(),
                QJsonObject({{"wo", "WO-88213"}, {"workflowId", "ethernet-turn-up"}, {"jobId", "WO-88213"},
                        {"testType", "otdr"}, {"testLabel", "None"}}));
        // A record of yesterday's job would tell of the wrong one.
        QVERIFY(basemgr()->setValue(activeItem, false));
        QVERIFY(m_backend->withdraw("orb.base.workflow_manager_app"));
        QVERIFY(report.save(true));
        QVERIFY(contentsOf(onDisk(folder + "a.txt.metadata")).contains("\"info\": {\n    }"));
    }
    void aRecordThatCannotBeWrittenHindersNothing()
    {
        QVERIFY(writeFile(onDisk("/cust/private/reports"), "no folder"));
        Controller report;
        report.setUp("a", 3);
        QVERIFY(report.save());
        QVERIFY(!manager()->currentDialog());
    }

    void savesCanBeCancelled()
    {
        Controller report;
        report.setUp("a", 5);
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
        // What is written is kept from the cloud all the same, and the next save is not cancelled.
        QVERIFY(contentsOf(onDisk("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt")).contains("a.xml"));
        QVERIFY(report.save(true));
        // Behind the last one there is nothing left to cancel.
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
    void aSaveTellsTheNameThatItBeganWith()
    {
        Controller report;
        report.setUp("a", 5);
        QSignalSpy generated(&report, &Report::reportGenerated);
        connect(&report, &Report::savingChanged, &report, [&] { report.getSetting("reportFormat")->setValue(0); });
        QVERIFY(report.save());
        QCOMPARE(generated, QList<QVariantList>{{QString("a")}});
    }
    void pagesTellHowFarTheyAre()
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
        // While the page lives on, it may take the controller along.
        report.disconnect();
        const QPointer<Report> dying(new Report);
        dying->document().adopt(*document);
        dying->setInteractive(true);
        connect(dying, &Report::progressChanged, dying, [&] { delete dying; });
        QVERIFY(!dying->save(true));
        QVERIFY(!dying);
    }

    void slotsMayDeleteTheController_data()
    {
        QTest::addColumn<Setter>("prepare");
        QTest::addColumn<QStringList>("files");
        const auto onSignal = [](void (Report::*signal)()) {
            return [signal](Report& r) { connect(&r, signal, &r, [&r] { delete &r; }); };
        };
        const auto onNotification = [](void (KIVNotificationModelManager::*signal)()) {
            return [signal](Report& r) {
                // The dialog goes with the controller, which the manager tells, too.
                connect(manager(), signal, &r, [&r, isFirst = true]() mutable {
                    if (std::exchange(isFirst, false))
                        delete &r;
                });
            };
        };
        const auto add = [](const char* name, const Setter& prepare, const QStringList& files) {
            QTest::newRow(name) << prepare << files;
        };
        const auto dialog = onNotification(&KIVNotificationModelManager::currentDialogChanged);
        const auto tray = onNotification(&KIVNotificationModelManager::countChanged);
        const auto blocked = [](Report& r) {
            QVERIFY(writeFile(QFile::decodeName(qgetenv("UIUTILS_ROOT")) + "/cust/public/reports/f", ""));
            r.setFolder("f");
        };
        add("job info", onSignal(&Report::includeJobInfoChanged), {});
        add("last XML", onSignal(&Report::lastSavedXMLChanged), {"a.xml"});
        add("files", onSignal(&Report::reportFilesChanged), {"a.xml"});
        add("location", onSignal(&Report::saveLocationChanged), {"a.xml"});
        add("tray", tray, {"a.xml"});
        add(
                "generated", [](Report& r) { connect(&r, &Report::reportGenerated, &r, [&r] { delete &r; }); },
                {"a.xml", "a.html"});
        const auto failing = [=](const Setter& watch) {
            return [=](Report& r) {
                blocked(r);
                watch(r);
            };
        };
        add("error in the tray", failing(tray), {"f"});
        add("error in a dialog", failing(dialog), {"f"});
        add(
                "question",
                [=](Report& r) {
                    QVERIFY(r.writeXmlReport(r.getSaveFilePath("a", ".xml")));
                    dialog(r);
                },
                {"a.xml"});
    }
    void slotsMayDeleteTheController()
    {
        QFETCH(Setter, prepare);
        const QPointer<Controller> report(new Controller);
        report->setUp("a", 5);
        for (int format : {0, 3, 4})
            report->setFormatApplicable(format, false);
        auto* jobInfo = new BoolUiData;
        jobInfo->setAttributes({{"name", "includeJobInfo"}, {"type", "bool"}});
        jobInfo->setValue(true);
        report->addSetting(jobInfo);
        prepare(*report);
        report->save();
        QVERIFY(!report);
        QStringList found = names("/cust/public/reports");
        std::sort(found.begin(), found.end(), std::greater<>());
        QTEST(found, "files");
    }
    void generatorsMayDeleteTheController()
    {
        for (const int format : {0, 3}) {
            const QPointer<Controller> report(new Controller);
            report->setUp("a", format);
            report->whileMaking = [&report] { delete report; };
            QVERIFY(!report->save());
            QVERIFY(!report);
        }
    }
    void refusalsMayDeleteTheController()
    {
        const QPointer<Report> report(new Report);
        QVERIFY(basemgr()->setValue(activeItem, false));
        QVERIFY(!report->writeToJobManager());
        // The dialog of the first makes room for the second.
        connect(manager(), &KIVNotificationModelManager::currentDialogChanged, report, [&report, isFirst = true]() mutable {
            if (std::exchange(isFirst, false))
                delete report;
        });
        QVERIFY(!report->writeToJobManager());
        QVERIFY(!report);
        QVERIFY(!manager()->currentDialog());
    }
    void notifiersMayDeleteTheController()
    {
        writeTemplate("a.json", "");
        const QVector<Setter> changes{[](Report& r) { r.setTemplatePath("/cust/a.json"); },
                [](Report& r) { r.setFolder("x"); }, [](Report& r) { r.setTag("x"); },
                [](Report& r) { r.setBaseDirectory("/x/"); }};
        for (const Setter& change : changes) {
            const QPointer<Report> report(new Report);
            for (const auto signal : {&Report::reportFilesChanged, &Report::tagChanged})
                connect(report, signal, report, [&report] { delete report; });
            change(*report);
            QVERIFY(!report);
        }
        const QPointer<Report> report(new Report);
        connect(report, &Report::canWriteToJobManagerChanged, report, [&report] { delete report; });
        QVERIFY(basemgr()->setValue(activeItem, false));
        QTRY_VERIFY(!report);
    }
    void storedValuesMayDeleteTheController()
    {
        QVERIFY(writeFile(onDisk("/cust/private/lastconfigs/reportSettings/.json"),
                json("{'reportFormat': 1, 'reportName': 'a', 'reportSync_SS': true}")));
        const QPointer<Report> report(new Report);
        connect(report->getSetting("reportFormat"), &KivData::valueChanged, report, [&report] { delete report; });
        report->slotCreateSettings();
        QVERIFY(!report);
    }
    void answersMayDeleteTheirAsker()
    {
        const QPointer<Controller> first(new Controller);
        Controller second;
        QVERIFY(writeFile(onDisk("/cust/public/reports/a.txt"), ""));
        for (Controller* report : {first.data(), &second}) {
            report->setUp("a", 3);
            QVERIFY(!report->save());
        }
        QSignalSpy accepted(&second, &Report::reportOverwriteAccepted);
        connect(first, &Report::reportOverwriteAccepted, first, [&first] { delete first; });
        // The second hears this answer when the first has gone.
        manager()->accept();
        QVERIFY(!first);
        QCOMPARE(accepted.count(), 0);
        manager()->accept();
        QCOMPARE(accepted.count(), 1);
    }

    void dyingControllersSaveNothing()
    {
        QVERIFY(writeFile(onDisk("/cust/public/reports/a.txt"), "kept"));
        auto report = std::make_unique<Controller>();
        report->setUp("a", 3);
        QVERIFY(!report->save());
        QVector<bool> saved;
        Report* dying = report.get();
        connect(manager(), &KIVNotificationModelManager::currentDialogChanged, dying,
                [&saved, dying] { saved << dying->save(true); });
        report.reset();
        QCOMPARE(saved, QVector<bool>{false});
        QCOMPARE(contentsOf(onDisk("/cust/public/reports/a.txt")), QByteArray("kept"));
    }
    void dyingControllersAnswer()
    {
        QVERIFY(writeFile(onDisk("/cust/public/reports/f"), ""));
        auto report = std::make_unique<Controller>();
        report->setUp("a", 3);
        report->setFolder("f");
        QVERIFY(!report->save());
        QVERIFY(basemgr()->setValue(activeItem, false));
        QVERIFY(!report->writeToJobManager());
        QCOMPARE(manager()->waitingDialogs(), 1);
        QStringList seen;
        Report* dying = report.get();
        connect(manager(), &KIVNotificationModelManager::currentDialogChanged, dying,
                [&seen, dying] { seen << dying->getSaveLocation() << dying->getTitle() << QString::number(dying->getProgress()); });
        report.reset();
        QVERIFY(!manager()->currentDialog());
        QVERIFY(seen.contains("Internal:/reports/f/"));
    }

    void savesDoNotNest()
    {
        Controller report;
        report.setUp("a", 3);
        QVector<bool> nested;
        connect(&report, &Report::reportFilesChanged, &report, [&] { nested << report.save(true); });
        QVERIFY(report.save());
        QCOMPARE(nested, QVector<bool>{false});
        report.disconnect(&report);
        // Whoever answers at once is heard, and one save may follow another.
        connect(&report, &Report::reportOverwriteAccepted, &report, [&] { nested << report.save(true); });
        const auto watch = connect(manager(), &KIVNotificationModelManager::currentDialogChanged, &report, [] {
            if (manager()->currentDialog())
                manager()->accept();
        });
        QVERIFY(!report.save());
        QCOMPARE(nested, QVector<bool>({false, true}));
        disconnect(watch);
        connect(&report, &Report::reportGenerated, &report, [&] {
            if (report.getSetting("reportName")->getValue() != "b") {
                report.getSetting("reportName")->setValue("b");
                nested << report.save();
            }
        });
        QVERIFY(report.save(true));
        QCOMPARE(nested, QVector<bool>({false, true, true}));
        QCOMPARE(names("/cust/public/reports"), QStringList({"a.txt", "b.txt"}));
    }

    void aNewSaveTakesTheQuestionBack()
    {
        Controller report;
        report.setUp("a", 3);
        QVERIFY(report.save());
        QVERIFY(!report.save());
        QSignalSpy accepted(&report, &Report::reportOverwriteAccepted);
        report.getSetting("reportName")->setValue("b");
        QVERIFY(report.save());
        // An answer now would have "b" overwritten, which nobody has asked about.
        QVERIFY(!manager()->currentDialog());
        manager()->accept();
        QCOMPARE(accepted.count(), 0);
    }

    void emptyNamesAndFoldersHaveDefaults()
    {
        Controller report;
        report.setUp("", 3);
        report.proposed.clear();
        report.setBaseDirectory(QString());
        QVERIFY(report.save());
        QCOMPARE(names("/cust/public/reports"), QStringList("empty.txt"));
    }

    void compressingReplacesThePlainReport()
    {
        Controller report;
        report.setUp("a", 3);
        QVERIFY(report.save());
        report.setCompressionEnabled(true);
        QVERIFY(!report.save());
        QCOMPARE(names("/cust/public/reports"), QStringList("a.txt"));
        QVERIFY(report.save(true));
        QCOMPARE(names("/cust/public/reports"), QStringList("a.txt.gz"));
    }

    void reportsStayFromTheCloudThoughOthersFail()
    {
        Controller report;
        report.setUp("a", 5);
        QVERIFY(QDir().mkpath(onDisk("/cust/public/reports/a.xml/x")));
        QVERIFY(!report.save(true));
        const QByteArray list = contentsOf(onDisk("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt"));
        QVERIFY(list.contains("/a.pdf\n") && list.contains("/a.txt\n") && !list.contains("/a.xml\n"));
    }
    void reportsThatCannotBeCompressedStayFromTheCloud()
    {
        Controller report;
        report.setUp("a", 3);
        report.setCompressionEnabled(true);
        const auto restore = qScopeGuard([path = qgetenv("PATH")] { qputenv("PATH", path); });
        qputenv("PATH", "/nowhere");
        QVERIFY(!report.save());
        QCOMPARE(names("/cust/public/reports"), QStringList("a.txt"));
        QVERIFY(contentsOf(onDisk("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt"))
                        .contains("/cust/public/reports/a.txt\n"));
    }
    void theBaseManagerHearsOfAListThatOthersHaveMade()
    {
        const QString item(":config:basemgr:system:ss_nosync:stringARRAY:");
        QVERIFY(writeFile(onDisk("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt"), "/a.pdf\n/a.json\n"));
        Report().addReportToNoSyncList("/a.pdf");
        QCOMPARE(basemgr()->item(item)->getValue().toStringList(), QStringList({"/a.pdf", "/a.json"}));
    }

    void platformKeepsTheName()
    {
        int kept = 0;
        const auto count = [&kept](const QString&, QString*) { return ++kept > 0; };
        QVERIFY(basemgr()->setActionHandler(":action:basemgr:system:report_update_name_configs:", count));
        Controller report;
        report.setUp("a", 3);
        QVERIFY(report.save());
        QCOMPARE(kept, 1);
        report.keepsName = false;
        QVERIFY(report.save(true));
        QCOMPARE(kept, 1);
    }

    void syncChoiceIsRecorded()
    {
        Controller report;
        report.setUp("a", 3);
        QVERIFY(report.save());
        QVERIFY(report.save(true));
        const QString list = onDisk("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt");
        QCOMPARE(contentsOf(list), QByteArray("/cust/public/reports/a.txt\n/cust/public/reports/a.json\n"));
        QCOMPARE(basemgr()->item(":config:basemgr:system:ss_nosync:stringARRAY:")->getValue().toStringList().size(), 2);
        report.getSetting("reportSync_SS")->setValue(true);
        QVERIFY(report.save(true));
        QCOMPARE(contentsOf(list), QByteArray());
    }
    void aListThatCannotBeReadIsNotReplaced()
    {
        Controller report;
        report.setUp("a", 3);
        const QString folder = onDisk("/cust/private/lastconfigs/base/basemgr/system");
        QVERIFY(QDir().mkpath(folder + "/nosync_fileList.txt/x"));
        // The report is safe; that it may be synced the user has to know.
        QVERIFY(report.save());
        QCOMPARE(manager()->currentDialog()->longLabel(), QString("Sync"));
        manager()->accept();
        // A page that goes when its reports are saved takes the dialog along; two reports are one mishap.
        manager()->clear();
        {
            Controller leaving;
            leaving.setUp("b", 5);
            leaving.setNotifiesTray(false);
            QVERIFY(leaving.save());
        }
        QVERIFY(!manager()->currentDialog());
        QCOMPARE(manager()->count(), 1);
        QVERIFY(QDir(folder + "/nosync_fileList.txt").removeRecursively());
        const QByteArray foreign("/cust/public/caf\xe9\n\n/x\n/x\n");
        QVERIFY(writeFile(folder + "/nosync_fileList.txt", foreign));
        report.addReportToNoSyncList("/cust/a\n/cust/b");
        QCOMPARE(manager()->currentDialog()->longLabel(), QString("Sync"));
        QCOMPARE(contentsOf(folder + "/nosync_fileList.txt"), foreign);
        report.addReportToNoSyncList("/y.z/w");
        QCOMPARE(contentsOf(folder + "/nosync_fileList.txt"), QByteArray("/cust/public/caf\xe9\n/x\n/y.z/w\n/y.z/w.json\n"));
        // The JSON report that was kept back is not given away with the others of its name.
        report.writeNoSyncListToFile({});
        for (const char* path : {"/cust/a.pdf", "/cust/a.xml", "/cust/b.pdf", "/cust/b.json"})
            report.addReportToNoSyncList(path);
        QVERIFY(writeFile(onDisk("/cust/b.json"), "{}"));
        report.removeReportFromNoSyncList("/cust/a.pdf");
        report.removeReportFromNoSyncList("/cust/b.pdf");
        QCOMPARE(contentsOf(folder + "/nosync_fileList.txt"), QByteArray("/cust/a.json\n/cust/a.xml\n/cust/b.json\n"));
        report.removeReportFromNoSyncList("/cust/a.xml");
        report.removeReportFromNoSyncList("/cust/b.json");
        QCOMPARE(contentsOf(folder + "/nosync_fileList.txt"), QByteArray());
        report.writeNoSyncListToFile({"/1", "/2", "/1"});
        QCOMPARE(contentsOf(folder + "/nosync_fileList.txt"), QByteArray("/1\n/2\n"));
        QCOMPARE(basemgr()->item(":config:basemgr:system:ss_nosync:stringARRAY:")->getValue().toStringList(),
                QStringList({"/1", "/2"}));
    }

    void jobsTakeReportsOrSayWhyNot()
    {
        Controller report;
        QVERIFY(report.writeToJobManager());
        QVERIFY(!manager()->currentDialog());
        QVERIFY(basemgr()->setValue(activeItem, false));
        QVERIFY(!report.writeToJobManager());
        QCOMPARE(manager()->currentDialog()->msg(), QString("There is no active job"));
    }

    void viewerIsStarted()
    {
        const QString viewer = onDisk("/base/bin/pdf_viewer");
        QVERIFY(writeFile(
                viewer, "#!/bin/sh\nprintf '%s\\n' \"$PWD\" \"$@\" > arguments.part\nmv arguments.part arguments\n"));
        QVERIFY(QFile::setPermissions(viewer, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QVERIFY(QDir().mkpath(onDisk("/base/qml/pdf_viewer")));
        Report report;
        report.showPDF("/cust/a.PDF");
        report.showPDF("");
        report.showPDF("/cust/a b.pdf.gz");
        const QString arguments = onDisk("/base/qml/pdf_viewer/arguments");
        QTRY_VERIFY(QFile::exists(arguments));
        QCOMPARE(QString::fromUtf8(contentsOf(arguments)).split('\n'),
                QStringList({onDisk("/base/qml/pdf_viewer"), "-plugin", "EvdevTouch:/dev/input/event1", "--dpy", "85",
                        "-s", onDisk("/cust/a b.pdf.gz"), "-t", "View Report", ""}));
        QVERIFY(QFile::remove(arguments));
        report.setTitle("Shown again");
        report.showPDF("");
        QTRY_VERIFY(QFile::exists(arguments));
        QVERIFY(contentsOf(arguments).endsWith("/cust/a b.pdf.gz\n-t\nShown again\n"));
    }

    void aPageSaves()
    {
        uiutils::registerTypes("UiUtils");
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData(R"(
            import QtQml 2.15
            import UiUtils 1.0
            Report {
                folder: "page"
                property string saved
                property string label: settings.reportFormat.label
                onReportGenerated: saved = filename
                Component.onCompleted: {
                    getSetting("reportName").value = "q"
                    getSetting("reportFormat").value = 1
                    startPossibleSave()
                    save()
                    gc()
                }
            }
        )",
                QUrl());
        const std::unique_ptr<QObject> page(component.create());
        QVERIFY2(page, qPrintable(component.errorString()));
        QCOMPARE(page->property("saved").toString(), QString("/cust/public/reports/page/q.xml"));
        QCOMPARE(page->property("label").toString(), QString("Format"));
        QVERIFY(page->findChild<StringUiData*>());
    }

    void builtInPagesAndMarkup()
    {
        Report report;
        report.setTitle("Own title");
        writeTemplate("rows.json", ", 'table_0': {'node_type': 'table', 'title': 'T', 'num_columns': 1}");
        report.setTemplatePath("/cust/rows.json");
        QVERIFY(report.generatePDFReport().startsWith("%PDF-"));
        QVERIFY(Report::m_reportItems.isEmpty());
        QVERIFY(report.generateHtmlReport().contains("Own title"));
        report.setShowSoftwareRevs(false);
        QVERIFY(!report.generateHtmlReport().contains("Software Revisions"));
        QVERIFY(report.generateXmlReport().startsWith("<?xml"));
    }
};

QTEST_MAIN(ReportTest)

#include "tst_report.moc"
