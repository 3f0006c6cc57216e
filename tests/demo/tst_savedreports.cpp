#include "columns.h"
#include "files.h"

#include "base/paths_p.h"
#include "loopbackreport.h"
#include "savedreportactions.h"
#include "screencamera.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivnotificationmodelmanager.h>

#include <functional>
#include <memory>

using namespace uiutils;
using namespace uiutils::demo;

namespace {

const QString folder = QStringLiteral("/cust/public/reports/loopback/");
const QString records = QStringLiteral("/cust/private/reports/metadata/loopback/");
const QString unsynced = QStringLiteral("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt");

} // namespace

class SavedReportsTest;
/// Events on the instrument during the actions.
using Deed = std::function<void(SavedReportsTest&)>;
Q_DECLARE_METATYPE(Deed)

class SavedReportsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        qputenv("UIUTILS_ROOT", m_root->path().toLocal8Bit());
        m_services = std::make_unique<kiv::embedded::EmbeddedBackend>();
        QVERIFY(m_services->loadFile(UIUTILS_SOURCE_DIR "/platform/reference/services/basemgr.service.json"));
        baseManager()->setMounted("/mnt/usb/", true);
        QVERIFY(QDir().mkpath(onDisk("/mnt/usb")));
        m_report = std::make_unique<LoopbackReport>();
        m_report->setTag("loopback");
        m_actions = std::make_unique<SavedReportActions>();
        m_actions->setReport(m_report.get());
    }
    void cleanup()
    {
        m_actions.reset();
        m_report.reset();
        m_services.reset();
        QVERIFY(!notifications()->currentDialog());
        notifications()->clear();
    }

    void deleting()
    {
        for (const char* name : {"<b>a.pdf", "<b>a.json", "b.pdf"})
            putReport(name);
        QSignalSpy changed(m_report.get(), &Report::reportFilesChanged);

        m_actions->remove(folder + "<b>a.pdf");
        QVERIFY(question().contains("<b>a.pdf"));
        notifications()->reject();
        QCOMPARE(filesIn(folder).size(), 3);
        QCOMPARE(changed.size(), 0);

        // Its line in the no-sync list stays with the JSON report.
        m_actions->remove(folder + "<b>a.pdf");
        notifications()->accept();
        QCOMPARE(filesIn(folder), QStringList({"<b>a.json", "b.pdf"}));
        QCOMPARE(filesIn(records), QStringList({"<b>a.json.metadata", "b.pdf.metadata"}));
        QVERIFY(contents(unsynced).contains("/<b>a.json\n"));
        QCOMPARE(changed.size(), 1);

        m_actions->remove(folder + "<b>a.json");
        notifications()->accept();
        QCOMPARE(filesIn(records), QStringList("b.pdf.metadata"));
        QVERIFY(!contents(unsynced).contains("a.json"));
        QVERIFY(contents(unsynced).contains("/b.pdf\n"));
        QCOMPARE(notifications()->count(), 0);
    }

    void deletingALineFeed()
    {
        put(folder + "a\nb.pdf", "report");
        m_actions->remove(folder + "a\nb.pdf");
        QVERIFY(question().contains("a b.pdf"));
        notifications()->accept();
        QCOMPARE(filesIn(folder), QStringList());
        expectError(QString());
    }

    void deletingWhatHasChanged_data()
    {
        addColumns<Deed, bool>();
        QTest::newRow("gone") << Deed([](SavedReportsTest&) { QFile::remove(onDisk(folder + "a.pdf")); }) << true;
        QTest::newRow("a link") << Deed([](SavedReportsTest& test) {
            test.put("/cust/public/kept", "kept");
            QFile::remove(onDisk(folder + "a.pdf"));
            QFile::link(onDisk("/cust/public/kept"), onDisk(folder + "a.pdf"));
        }) << true;
        QTest::newRow("cannot be deleted") << Deed([](SavedReportsTest&) {
            QFile::remove(onDisk(folder + "a.pdf"));
            QDir().mkpath(onDisk(folder + "a.pdf/full"));
        }) << false;
    }
    void deletingWhatHasChanged()
    {
        const auto [meanwhile, isDeleted] = currentRow<Deed, bool>();
        putReport("a.pdf");
        m_actions->remove(folder + "a.pdf");
        meanwhile(*this);
        QSignalSpy changed(m_report.get(), &Report::reportFilesChanged);
        notifications()->accept();
        QCOMPARE(changed.size(), 1);
        QCOMPARE(!QFileInfo::exists(onDisk(folder + "a.pdf")), isDeleted);
        QCOMPARE(filesIn(records).isEmpty(), isDeleted);
        QCOMPARE(contents("/cust/public/kept").isEmpty(), QTest::currentDataTag() != QByteArray("a link"));
        expectError(isDeleted ? "" : "Write Error");
    }

    void onTheUsbDrive()
    {
        const QStringList others {"._c.pdf", "b.json.gz", "notes.doc"};
        for (const QString& name : others + QStringList {"a.pdf", "a.pdf.metadata", "folder.pdf/d.pdf"})
            put("/mnt/usb/" + name, "a file");
        m_report->addReportToNoSyncList("/mnt/usb/a.pdf");
        const auto listed = [this] {
            QStringList paths;
            for (const QVariant& file : m_actions->reportsOnUsb())
                paths += file.toMap().value("path").toString();
            paths.sort();
            return paths;
        };
        QCOMPARE(listed(), QStringList({"/mnt/usb/a.pdf", "/mnt/usb/b.json.gz"}));

        // What is unplugged meanwhile is neither deleted nor forgotten.
        m_actions->remove("/mnt/usb/a.pdf");
        baseManager()->setMounted("/mnt/usb/", false);
        QCOMPARE(listed(), QStringList());
        notifications()->accept();
        expectError("Write Error");
        QVERIFY(contents(unsynced).contains("/mnt/usb/a.pdf\n"));
        baseManager()->setMounted("/mnt/usb/", true);

        m_actions->remove("/mnt/usb/a.pdf");
        QVERIFY(question().contains("USB:/a.pdf"));
        notifications()->accept();
        QCOMPARE(filesIn("/mnt/usb/"), QStringList({"._c.pdf", "b.json.gz", "folder.pdf", "notes.doc"}));
        QVERIFY(!contents(unsynced).contains("a.pdf"));
    }

    void copying_data()
    {
        addColumns<Deed, Deed, QByteArray, QString>();
        const Deed nothing = [](SavedReportsTest&) {};
        const Deed taken = [](SavedReportsTest& test) { test.put("/mnt/usb/a.pdf", "old"); };
        const Deed pull = [](SavedReportsTest& test) { test.baseManager()->setMounted("/mnt/usb/", false); };
        const Deed vanish = [](SavedReportsTest&) { QFile::remove(onDisk(folder + "a.pdf")); };
        const Deed grow = [](SavedReportsTest&) { QVERIFY(QFile::resize(onDisk(folder + "a.pdf"), qint64(3) << 30)); };
        const Deed no = [](SavedReportsTest&) { notifications()->reject(); };
        QTest::newRow("first") << nothing << nothing << QByteArray("report") << "";
        QTest::newRow("in place of another") << taken << nothing << QByteArray("report") << "";
        QTest::newRow("not in place of another") << taken << no << QByteArray("old") << "";
        QTest::newRow("no drive") << pull << nothing << QByteArray() << "Write Error";
        QTest::newRow("the drive is pulled") << taken << pull << QByteArray("old") << "Write Error";
        QTest::newRow("more than can be read") << taken << grow << QByteArray("old") << "Read Error";
        QTest::newRow("the report is gone") << taken << vanish << QByteArray("old") << "Read Error";
    }
    void copying()
    {
        const auto [before, meanwhile, copy, error] = currentRow<Deed, Deed, QByteArray, QString>();
        putReport("a.pdf");
        before(*this);
        m_actions->copyToUsb(folder + "a.pdf");
        if (QTest::currentDataTag() != QByteArray("no drive") && notifications()->currentDialog()) {
            QVERIFY(question().contains("USB:/a.pdf"));
            meanwhile(*this);
            notifications()->accept();
        }
        QCOMPARE(contents("/mnt/usb/a.pdf"), copy);
        QCOMPARE(filesIn("/mnt/usb/").size(), copy.isEmpty() ? 0 : 1);
        expectError(error);
        QCOMPARE(notifications()->count(), error.isEmpty() && copy == "old" ? 0 : 1);
    }

    void screenshotsHaveNamesOfTheirOwn()
    {
        QCOMPARE(ScreenCamera::freeBaseName("20260131-142500"), QString("screenshot_20260131-142500"));
        put(paths::screenshots + QString("screenshot_20260131-142500.png"), "a picture");
        put(paths::screenshots + QString("screenshot_20260131-142500_2.png"), "a picture");
        QCOMPARE(ScreenCamera::freeBaseName("20260131-142500"), QString("screenshot_20260131-142500_3"));
    }

private:
    static KIVNotificationModelManager* notifications() { return KIVNotificationModelManager::instance(); }
    static QString question()
    {
        const KIVNotification* const dialog = notifications()->currentDialog();
        return dialog && dialog->kind() == KIVNotification::Request ? dialog->msg() : QString();
    }
    /// The one dialog, which is closed; an empty title stands for none.
    static void expectError(const QString& title)
    {
        const KIVNotification* const dialog = notifications()->currentDialog();
        QCOMPARE(dialog ? dialog->longLabel() : QString(), title);
        notifications()->reject();
    }

    kiv::embedded::EmbeddedService* baseManager() const { return m_services->service("basemgr"); }

    /// Files of the instrument.
    static QStringList filesIn(const QString& path) { return namesIn(onDisk(path)); }
    static QByteArray contents(const QString& path) { return contentsOf(onDisk(path)); }
    void put(const QString& path, const QByteArray& text) { writeFile(onDisk(path), text); }
    /// With its metadata record, and in the no-sync list.
    void putReport(const QString& name, const QByteArray& text = "report")
    {
        put(folder + name, text);
        put(records + name + ".metadata", "{}");
        m_report->addReportToNoSyncList(folder + name);
    }

    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_services;
    std::unique_ptr<LoopbackReport> m_report;
    std::unique_ptr<SavedReportActions> m_actions;
};

QTEST_GUILESS_MAIN(SavedReportsTest)
#include "tst_savedreports.moc"
