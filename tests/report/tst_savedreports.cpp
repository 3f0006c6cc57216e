#include "reportfixture.h"

#include "report/savedreports.h"

#include <QAbstractItemModelTester>

using uiutils::SavedReports;

namespace {

const QString folder("/cust/public/reports/loopback/");
const QString records("/cust/private/reports/metadata/loopback/");

} // namespace

class SavedReportsTest;
/// Events on the instrument during the actions.
using Deed = std::function<void(SavedReportsTest&)>;
Q_DECLARE_METATYPE(Deed)

/// The list of saved reports, and what users do with them.
class SavedReportsTest : public ReportFixture
{
    Q_OBJECT

    QTemporaryDir m_programs;

    /// A page that shows the list of a controller.
    struct Page
    {
        Report report;
        SavedReports model;
        QStringList changes;

        explicit Page(SavedReports::Drive drive = SavedReports::AllDrives)
        {
            report.setTag("loopback");
            new QAbstractItemModelTester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest, &model);
            model.setReport(&report);
            model.setDrive(drive);
            model.refresh();
            connect(&model, &SavedReports::rowsInserted, [this](const QModelIndex&, int first, int last) { note("+", first, last); });
            connect(&model, &SavedReports::rowsRemoved, [this](const QModelIndex&, int first, int last) { note("-", first, last); });
            connect(&model, &SavedReports::dataChanged, [this](const QModelIndex& first, const QModelIndex& last, const QVector<int>& roles) {
                note(model.roleNames()[roles.value(0)] + ' ', first.row(), last.row());
            });
            connect(&model, &SavedReports::countChanged, [this] { changes += "count"; });
        }
        void note(const QString& what, int first, int last) { changes += what + QString::number(first) + (first == last ? "" : ".."); }
        QString takeChanges() { return std::exchange(changes, QStringList()).join(' '); }
        QVariant at(int row, SavedReports::Role role) const { return model.data(model.index(row), role); }
        /// The formats and names, with the marks of each report.
        QString rows() const
        {
            QStringList found;
            for (int row = 0; row < model.count(); ++row) {
                found += at(row, SavedReports::FormatRole).toString() + ' ' + at(row, SavedReports::NameRole).toString()
                        + (at(row, SavedReports::CompressedRole).toBool() ? " gz" : "")
                        + (at(row, SavedReports::DriveRole) == SavedReports::Usb ? " usb" : "")
                        + (at(row, SavedReports::SyncedRole) == false ? " unsynced" : "")
                        + (at(row, SavedReports::ViewableRole).toBool() ? " viewable" : "");
            }
            return found.join(", ");
        }
    };

    static QString question()
    {
        const KIVNotification* const dialog = manager()->currentDialog();
        return dialog && dialog->kind() == KIVNotification::Request ? dialog->msg() : QString();
    }
    /// The one dialog, which is closed; an empty title stands for none.
    static void expectError(const QString& title)
    {
        QCOMPARE(dialogTitle(), title);
        manager()->reject();
        QVERIFY(!manager()->currentDialog());
    }
    QByteArray contents(const QString& path) const { return contentsOf(onDisk(path)); }
    void put(const QString& path, const QByteArray& text) const { writeFile(onDisk(path), text); }
    /// Last written in that minute of a past day.
    void putOld(const QString& path, int minute, const QByteArray& text = "report") const
    {
        put(path, text);
        QFile file(onDisk(path));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime({2026, 1, 31}, {14, minute}), QFileDevice::FileModificationTime));
    }
    /// With its metadata record, and in the no-sync list.
    void putReport(Report& report, const QString& name) const
    {
        put(folder + name, "report");
        put(records + name + ".metadata", "{}");
        report.addReportToNoSyncList(folder + name);
    }

private Q_SLOTS:
    /// The machine's own programs must not be found, nor its desktop.
    void initTestCase()
    {
        qputenv("PATH", QFile::encodeName(m_programs.path()));
        qunsetenv("DISPLAY");
        qunsetenv("WAYLAND_DISPLAY");
    }

    void theListFollowsTheDisk()
    {
        plug(0);
        putOld(folder + "a.pdf", 1);
        putOld(folder + "d.xml.gz", 4);
        putOld("/mnt/usb/b.txt", 2);
        putOld("/cust/public/reports/else.txt", 9);
        Page page;
        QCOMPARE(page.rows(), QString("XML d gz, TEXT b usb, PDF a"));
        QCOMPARE(page.at(1, SavedReports::PathRole).toString(), QString("/mnt/usb/b.txt"));
        QCOMPARE(page.at(1, SavedReports::TimeRole).toDateTime(), QDateTime({2026, 1, 31}, {14, 2}));
        QCOMPARE(page.at(1, SavedReports::SizeRole), QVariant(6LL));

        // What others do in the folders; the rows that stay are left alone.
        const auto changed = [&](const QString& rows, const QString& changes) {
            QTRY_COMPARE(page.rows(), rows);
            QCOMPARE(page.takeChanges(), changes);
        };
        const auto save = [&](const QString& name, int minute, const QByteArray& text) {
            putOld("/tmp/" + name, minute, text);
            QCOMPARE(::rename(QFile::encodeName(onDisk("/tmp/" + name)), QFile::encodeName(onDisk(folder + name))), 0);
        };
        save("c.json", 3, "report");
        changed("XML d gz, JSON c, TEXT b usb, PDF a", "+1 count");
        save("a.pdf", 5, "more");
        QVERIFY(QFile::remove(onDisk("/mnt/usb/b.txt")));
        changed("PDF a, XML d gz, JSON c", "+0 -3.. count");
        save("c.json", 3, "");
        put("/mnt/usb/e.txt", "");
        changed("TEXT e usb, PDF a, XML d gz, JSON c", "+0 size 3 count");

        // A drive, a viewer, another process's choice for the cloud.
        QVERIFY(basemgr()->setMounted("/mnt/usb", false) && basemgr()->setValue(usbItem, false));
        changed("PDF a, XML d gz, JSON c", "-0 count");
        put("/base/bin/pdf_viewer", "#!/bin/true\n");
        QVERIFY(QFile::setPermissions(onDisk("/base/bin/pdf_viewer"), QFile::ReadOwner | QFile::ExeOwner));
        Report().addReportToNoSyncList(folder + "c.json");
        page.model.refresh();
        changed("PDF a viewable, XML d gz, JSON c unsynced", "synced 0..");
        QVERIFY(page.model.setSynced(folder + "c.json", true) && page.model.setSynced(folder + "d.xml.gz", false));
        changed("PDF a viewable, XML d gz unsynced, JSON c", "synced 0..");
        put("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt", QByteArray(2 << 20, 'x'));
        page.model.refresh();
        QCOMPARE(page.at(0, SavedReports::SyncedRole), QVariant());
        QVERIFY(!page.model.setSynced(folder + "c.json", false));
        expectError("Sync");
    }

    void searchingAndSorting()
    {
        putOld(folder + "Trunk 10.pdf", 1, "1234");
        putOld(folder + "trunk 9.xml", 2, "12");
        putOld(folder + "Ring.pdf.gz", 3, "123");
        Page page;
        const auto order = [&](const QString& rows) {
            QCOMPARE(page.rows().remove("PDF ").remove("XML ").remove(" gz"), rows);
            QCOMPARE(page.model.totalCount(), 3 + int(rows.contains("new")));
        };
        order("Ring, trunk 9, Trunk 10");
        page.model.setReversed(true);
        order("Trunk 10, trunk 9, Ring");
        page.model.setSortKey(SavedReports::ByName);
        order("Trunk 10, trunk 9, Ring");
        page.model.setReversed(false);
        order("Ring, trunk 9, Trunk 10");
        page.model.setSortKey(SavedReports::BySize);
        order("Trunk 10, Ring, trunk 9");
        page.model.setSortKey(SavedReports::ByFormat);
        order("Ring, Trunk 10, trunk 9");
        QVERIFY(page.takeChanges().isEmpty());
        for (const auto& [filter, rows] : {std::pair(" TRUNK ", "Trunk 10, trunk 9"), std::pair("trunk pdf", "Trunk 10"), std::pair("trunk txt", ""), std::pair("nk 9 x", "trunk 9")}) {
            page.model.setFilter(filter);
            order(rows);
        }
        // What comes and goes finds its place; what is not looked for is counted.
        page.model.setSortKey(SavedReports::ByName);
        page.model.setFilter("pdf");
        page.takeChanges();
        QSignalSpy totals(&page.model, &SavedReports::totalCountChanged);
        putOld(folder + "new sound.pdf", 9);
        page.model.refresh();
        order("new sound, Ring, Trunk 10");
        QCOMPARE(page.takeChanges(), QString("+0 count"));
        QVERIFY(QFile::remove(onDisk(folder + "trunk 9.xml")));
        page.model.refresh();
        QVERIFY(page.takeChanges().isEmpty() && totals.size() == 2);
        // A slot that wants another order while rows come.
        connect(&page.model, &SavedReports::rowsInserted, [&] { page.model.setReversed(true); });
        putOld(folder + "able.pdf", 8);
        page.model.refresh();
        QTRY_COMPARE(page.rows(), QString("PDF Trunk 10, PDF Ring gz, PDF new sound, PDF able"));
    }

    void openingEachFormat()
    {
        const QStringList formats {"a.csv.zip", "a.html", "a.json", "a.pdf", "a.txt", "a.xml", "a.xml.gz"};
        const auto viewable = [&] {
            Page page;
            return page.rows().count("viewable");
        };
        for (const QString& name : formats)
            put(folder + name, "report");
        QCOMPARE(viewable(), 0);
        QVERIFY(!SavedReports().open(folder + "a.txt"));
        const QString opened = m_programs.filePath("opened");
        const QString program = writeFile(m_programs.filePath("xdg-open"), "#!/bin/sh\necho \"$1\" > " + QFile::encodeName(opened) + ".new\n/bin/mv "
                + QFile::encodeName(opened) + ".new " + QFile::encodeName(opened) + "\n");
        const auto gone = qScopeGuard([&] { QFile::remove(program); });
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
        const auto desktop = qScopeGuard([] { qunsetenv("WAYLAND_DISPLAY"); });
        QCOMPARE(viewable(), 0);
        qputenv("WAYLAND_DISPLAY", "wayland-0");
        QCOMPARE(viewable(), 5);
        SavedReports model;
        QVERIFY(!model.open(folder + "a.xml.gz"));
        QVERIFY(model.open(folder + "a.txt"));
        QTRY_COMPARE(contentsOf(opened), QFile::encodeName(onDisk(folder + "a.txt")) + '\n');
    }

    void readingTexts()
    {
        const auto packed = [](const QByteArray& text) {
            // A gzip member: header, deflated data, checksum and size.
            QProcess gzip;
            gzip.start("/bin/gzip", {"-c"});
            gzip.write(text);
            gzip.closeWriteChannel();
            gzip.waitForFinished();
            return gzip.readAllStandardOutput();
        };
        const QByteArray large = QByteArray(1024 * 1024 - 1, 'x') + "\u00fc and more";
        const std::tuple<QString, QByteArray, QString> rows[] {{"a.txt", "gr\u00fcn\n", QString::fromUtf8("gr\u00fcn\n")}, {"a.xml.gz", packed("<a/>"), "<a/>"},
                {"a.html", large, QString(1024 * 1024 - 1, 'x')}, {"a.json.gz", packed(large), QString(1024 * 1024 - 1, 'x')},
                {"a.html.gz", packed("text").chopped(3), ""}, {"a.pdf", "%PDF", ""}, {"a.zip", "PK", ""}, {"b.txt.gz", "text", ""}};
        const SavedReports model;
        for (const auto& [name, bytes, text] : rows) {
            put(folder + name, bytes);
            QVERIFY2(model.readText(folder + name) == text, qPrintable(name));
        }
        QVERIFY(model.readText(folder + "none.txt").isEmpty());
        QVERIFY(QDir().mkpath(onDisk(folder + "folder.txt")) && model.readText(folder + "folder.txt").isEmpty());
    }

    void whichReportsAreListed()
    {
        plug(0);
        for (const QString& path : {folder + "a.txt", QString("/mnt/usb/b.txt"), QString("/mnt/usb/else/c.txt"),
                     QString("/cust/public/reports/d.txt"), QString("/cust/public/reports/otdr/e.txt")})
            putOld(path, 1);
        Page page(SavedReports::Unit);
        QSignalSpy folders(&page.model, &SavedReports::folderChanged);
        QCOMPARE(page.rows(), QString("TEXT a"));
        page.model.setDrive(SavedReports::Usb);
        QTRY_COMPARE(page.rows(), QString("TEXT b usb"));
        page.model.setDrive(SavedReports::AllDrives);
        page.report.setFolder("otdr");
        QTRY_COMPARE(page.rows(), QString("TEXT b usb, TEXT e"));
        QCOMPARE(page.model.folder(), QString("/cust/public/reports/otdr/"));
        QCOMPARE(folders.size(), 1);
        for (const char* own : {"/mnt/usb/else", "/mnt/usb//", ""}) {
            page.model.setFolder(own);
            QTRY_COMPARE(page.rows(), QString(*own == 0 ? "TEXT b usb, TEXT e" : own[9] == '/' ? "TEXT b usb" : "TEXT b usb, TEXT c usb"));
        }
        // A list without a controller, also one whose controller is deleted.
        auto other = std::make_unique<Report>();
        page.model.setReport(other.get());
        page.model.setDrive(SavedReports::Unit);
        QTRY_COMPARE(page.rows(), QString("TEXT d"));
        other->setTag("loopback");
        QTRY_COMPARE(page.rows(), QString("TEXT a"));
        QSignalSpy reports(&page.model, &SavedReports::reportChanged);
        other.reset();
        QTRY_COMPARE(page.rows(), QString("TEXT d"));
        QVERIFY(!page.model.report() && reports.size() == 1);
        QCOMPARE(page.model.folder(), QString("/cust/public/reports/"));
    }

    void theRecordOfAReport()
    {
        Controller saved("a", 3);
        saved.setFolder("loopback");
        QVERIFY(basemgr()->setValue(activeItem, true));
        QVERIFY(basemgr()->setValue(":result:basemgr:jobmanager:jobID:", "J-17"));
        QVERIFY(saved.save());
        Page page;
        const QVariantMap record = page.model.record(folder + "a.txt");
        QCOMPARE(QStringList(record.keys()).join(' '), QString("format info originFilePath timeStamp type"));
        QCOMPARE(record["format"].toString() + record["type"].toString(), QString("TEXTresult"));
        QCOMPARE(record["originFilePath"].toString(), folder + "a.txt");
        QCOMPARE(record["info"].toMap().value("jobId"), QVariant("J-17"));
        QVERIFY(page.model.record(folder + "b.txt").isEmpty());
    }

    void deleting()
    {
        Page page;
        for (const char* name : {"<b>a.pdf", "<b>a.json", "b.pdf"})
            putReport(page.report, name);
        QSignalSpy changed(&page.report, &Report::reportFilesChanged);

        page.model.remove(folder + "<b>a.pdf");
        QVERIFY(question().contains("<b>a.pdf"));
        manager()->reject();
        QCOMPARE(names(folder).size(), 3);
        QCOMPARE(changed.size(), 0);

        // Its line in the no-sync list stays with the JSON report.
        page.model.remove(folder + "<b>a.pdf");
        manager()->accept();
        QCOMPARE(names(folder), QStringList({"<b>a.json", "b.pdf"}));
        QCOMPARE(names(records), QStringList({"<b>a.json.metadata", "b.pdf.metadata"}));
        QVERIFY(contentsOf(listFile()).contains("/<b>a.json\n"));
        QCOMPARE(changed.size(), 1);

        page.model.remove(folder + "<b>a.json");
        manager()->accept();
        QCOMPARE(names(records), QStringList("b.pdf.metadata"));
        QVERIFY(!contentsOf(listFile()).contains("a.json"));
        QVERIFY(contentsOf(listFile()).contains("/b.pdf\n"));
        QCOMPARE(manager()->count(), 0);
    }

    void deletingALineFeed()
    {
        Page page;
        put(folder + "a\nb.pdf", "report");
        page.model.remove(folder + "a\nb.pdf");
        QVERIFY(question().contains("a b.pdf"));
        manager()->accept();
        QCOMPARE(names(folder), QStringList());
        expectError(QString());
    }

    void deletingWhatHasChanged_data()
    {
        addColumns<Deed, bool>();
        QTest::newRow("gone") << Deed([](SavedReportsTest& test) { QFile::remove(test.onDisk(folder + "a.pdf")); }) << true;
        QTest::newRow("a link") << Deed([](SavedReportsTest& test) {
            test.put("/cust/public/kept", "kept");
            QFile::remove(test.onDisk(folder + "a.pdf"));
            QFile::link(test.onDisk("/cust/public/kept"), test.onDisk(folder + "a.pdf"));
        }) << true;
        QTest::newRow("cannot be deleted") << Deed([](SavedReportsTest& test) {
            QFile::remove(test.onDisk(folder + "a.pdf"));
            QDir().mkpath(test.onDisk(folder + "a.pdf/full"));
        }) << false;
    }
    void deletingWhatHasChanged()
    {
        const auto [meanwhile, isDeleted] = currentRow<Deed, bool>();
        Page page;
        putReport(page.report, "a.pdf");
        page.model.remove(folder + "a.pdf");
        meanwhile(*this);
        QSignalSpy changed(&page.report, &Report::reportFilesChanged);
        manager()->accept();
        QCOMPARE(changed.size(), 1);
        QCOMPARE(!QFileInfo::exists(onDisk(folder + "a.pdf")), isDeleted);
        QCOMPARE(names(records).isEmpty(), isDeleted);
        QCOMPARE(contents("/cust/public/kept").isEmpty(), QTest::currentDataTag() != QByteArray("a link"));
        expectError(isDeleted ? "" : "Write Error");
    }

    void onTheUsbDrive()
    {
        plug(0);
        Page page(SavedReports::Usb);
        const QStringList others {"._c.pdf", "b.json.gz", "notes.doc"};
        for (const QString& name : others + QStringList {"a.pdf", "a.pdf.metadata", "folder.pdf/d.pdf"})
            put("/mnt/usb/" + name, "a file");
        page.report.addReportToNoSyncList("/mnt/usb/a.pdf");
        page.model.copyToUsb("/mnt/usb/a.pdf");
        expectError(QString());

        // What is unplugged meanwhile is neither deleted nor forgotten.
        page.model.remove("/mnt/usb/a.pdf");
        QVERIFY(basemgr()->setMounted("/mnt/usb/", false));
        manager()->accept();
        expectError("Write Error");
        QVERIFY(contentsOf(listFile()).contains("/mnt/usb/a.pdf\n"));
        QVERIFY(basemgr()->setMounted("/mnt/usb/", true));

        page.model.remove("/mnt/usb/a.pdf");
        QVERIFY(question().contains("USB:/a.pdf"));
        manager()->accept();
        QCOMPARE(names("/mnt/usb/"), QStringList({"._c.pdf", "b.json.gz", "folder.pdf", "notes.doc"}));
        QVERIFY(!contentsOf(listFile()).contains("a.pdf"));
    }

    void copying_data()
    {
        addColumns<Deed, Deed, QByteArray, QString>();
        const Deed nothing = [](SavedReportsTest&) {};
        const Deed taken = [](SavedReportsTest& test) { test.put("/mnt/usb/a.pdf", "old"); };
        const Deed pull = [](SavedReportsTest& test) { test.basemgr()->setMounted("/mnt/usb/", false); };
        const Deed vanish = [](SavedReportsTest& test) { QFile::remove(test.onDisk(folder + "a.pdf")); };
        const Deed grow = [](SavedReportsTest& test) { QVERIFY(QFile::resize(test.onDisk(folder + "a.pdf"), qint64(3) << 30)); };
        const Deed no = [](SavedReportsTest&) { manager()->reject(); };
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
        plug(0);
        Page page;
        putReport(page.report, "a.pdf");
        before(*this);
        page.model.copyToUsb(folder + "a.pdf");
        if (QTest::currentDataTag() != QByteArray("no drive") && manager()->currentDialog()) {
            QVERIFY(question().contains("USB:/a.pdf"));
            meanwhile(*this);
            manager()->accept();
        }
        QCOMPARE(contents("/mnt/usb/a.pdf"), copy);
        QCOMPARE(names("/mnt/usb/").size(), copy.isEmpty() ? 0 : 1);
        expectError(error);
        QCOMPARE(manager()->count(), error.isEmpty() && copy == "old" ? 0 : 1);
    }

    /// The page may be left in a slot of what an action brings about.
    void aPageThatIsLeft()
    {
        plug(0);
        const auto page = std::make_unique<Page>();
        putReport(page->report, "a.pdf");
        QSignalSpy changed(&page->report, &Report::reportFilesChanged);
        std::unique_ptr<SavedReports> model;
        for (const bool isCopied : {true, false}) {
            model = std::make_unique<SavedReports>();
            model->setReport(&page->report);
            QObject scope;
            connect(manager(), &QAbstractItemModel::rowsInserted, &scope, [&] { model.reset(); });
            connect(&page->report, &Report::reportFilesChanged, &scope, [&] { model.reset(); });
            if (isCopied)
                model->copyToUsb(folder + "a.pdf");
            else
                model->remove(folder + "a.pdf");
            manager()->accept();
            QVERIFY(!model);
            QCOMPARE(changed.size(), isCopied ? 0 : 1);
        }
        QVERIFY(names(folder).isEmpty() && names("/mnt/usb") == QStringList("a.pdf"));
    }
};

QTEST_GUILESS_MAIN(SavedReportsTest)
#include "tst_savedreports.moc"
