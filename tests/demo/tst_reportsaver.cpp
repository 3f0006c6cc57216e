#include "core/durablefile.h"
#include "core/paths.h"
#include "reportsaver.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace uiutils;
using namespace uiutils::demo;

namespace {

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

} // namespace

class ReportSaverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        QVERIFY(m_root->isValid());
        qputenv("UIUTILS_ROOT", m_root->path().toLocal8Bit());
        m_folder = onDisk(paths::reports);
        m_saver = std::make_unique<ReportSaver>();
        m_report = std::make_unique<ReportTemplate>();
        m_report->beginReport("report");
        m_report->setKey("title", "Line <3>");
        m_report->endReport();
    }

    void allFilesAreWritten()
    {
        QVERIFY(QDir().mkpath(onDisk(paths::images)));
        QVERIFY(writeFileDurably(onDisk(paths::logo), "picture"));
        QVERIFY2(m_saver->save(m_report.get(), "first", {{"marginal", true}}),
                qPrintable(m_saver->errorText()));

        QCOMPARE(m_saver->files(), QStringList({m_folder + "first.pdf", m_folder + "first.html",
                                            m_folder + "first.xml", m_folder + "first.json"}));
        QVERIFY(contentsOf(m_folder + "first.pdf").startsWith("%PDF-"));
        QVERIFY(contentsOf(m_folder + "first.xml").contains("<report>"));
        QCOMPARE(contentsOf(m_folder + "first.json"), m_report->toJson().toUtf8());
        const QByteArray page = contentsOf(m_folder + "first.html");
        QVERIFY(page.contains("Line &lt;3&gt;"));
        QVERIFY(page.contains("report_status=marginal"));
        QVERIFY(page.contains("src=\"data:image/png;base64," + QByteArray("picture").toBase64() + '"'));

        QVERIFY(m_saver->save(m_report.get(), "first", {}));
        QCOMPARE(m_saver->files().size(), 4);
    }

    void withoutALogoThePageStillStandsAlone()
    {
        QVERIFY(m_saver->save(m_report.get(), "plain", {}));
        QVERIFY(!contentsOf(m_folder + "plain.html").contains("<img"));
    }

    void badNamesAreRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("empty") << "";
        QTest::newRow("blank") << "  ";
        QTest::newRow("other folder") << "sub/name";
        QTest::newRow("absolute") << "/etc/name";
        QTest::newRow("parent") << "..";
        QTest::newRow("hidden parent") << "a..b";
    }

    void badNamesAreRefused()
    {
        QFETCH(const QString, name);
        QVERIFY(!m_saver->save(m_report.get(), name, {}));
        QVERIFY(!m_saver->errorText().isEmpty());
        QVERIFY(m_saver->files().isEmpty());
        QVERIFY(QDir(m_root->path()).isEmpty());

        QVERIFY(m_saver->save(m_report.get(), "good", {}));
        QVERIFY(m_saver->errorText().isEmpty());
    }

    void nothingToSave()
    {
        ReportTemplate empty;
        QVERIFY(!m_saver->save(&empty, "name", {}));
        QVERIFY(!m_saver->save(nullptr, "name", {}));
        QVERIFY(QDir(m_root->path()).isEmpty());
    }

    /// A folder stands where the last file should go.
    void lastFileFailing()
    {
        QVERIFY(QDir().mkpath(m_folder + "half.json"));
        QVERIFY(!m_saver->save(m_report.get(), "half", {}));
        QVERIFY2(m_saver->errorText().contains(m_folder + "half.json"), qPrintable(m_saver->errorText()));
        QVERIFY(m_saver->files().isEmpty());
        QCOMPARE(QDir(m_folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                QStringList("half.json"));
    }

    void lastFileFailingKeepsEarlierOnes()
    {
        QVERIFY(QDir().mkpath(m_folder + "half.json"));
        QVERIFY(writeFileDurably(m_folder + "half.html", "an earlier page"));
        QVERIFY(!m_saver->save(m_report.get(), "half", {}));
        QCOMPARE(contentsOf(m_folder + "half.html"), QByteArray("an earlier page"));
        QVERIFY(!QFile::exists(m_folder + "half.xml"));
    }

    void firstFileFailing()
    {
        QVERIFY(QDir().mkpath(m_folder + "half.html"));
        QVERIFY(!m_saver->save(m_report.get(), "half", {}));
        QVERIFY(m_saver->errorText().contains(m_folder + "half.html"));
        QVERIFY(!QFile::exists(m_folder + "half.json") && !QFile::exists(m_folder + "half.pdf"));
    }

    void folderThatCannotBeMade()
    {
        QVERIFY(writeFileDurably(m_root->filePath("cust"), "in the way"));
        QVERIFY(!m_saver->save(m_report.get(), "name", {}));
        QVERIFY2(m_saver->errorText().contains(m_root->filePath("cust") + " is a file"),
                qPrintable(m_saver->errorText()));
    }

private:
    std::unique_ptr<QTemporaryDir> m_root;
    QString m_folder;
    std::unique_ptr<ReportSaver> m_saver;
    std::unique_ptr<ReportTemplate> m_report;
};

QTEST_MAIN(ReportSaverTest)
#include "tst_reportsaver.moc"
