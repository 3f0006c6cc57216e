#include "filesizelimit.h"

#include "base/durablefile.h"
#include "base/paths.h"
#include "base/temporaries_p.h"
#include "base/temporaryfolder_p.h"
#include "base/temporarysibling_p.h"
#include "base/xmltext_p.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace uiutils;

namespace {

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

QStringList namesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot | QDir::System, QDir::Name);
}

} // namespace

class CoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pathsOnDisk_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("moved");
        QTest::newRow("report") << "/cust/public/reports/a.html" << "/root/cust/public/reports/a.html";
        QTest::newRow("folder itself") << "/cust" << "/root/cust";
        QTest::newRow("stick") << "/mnt/usb/a.html" << "/root/mnt/usb/a.html";
        QTest::newRow("stick itself") << "/mnt/usb" << "/root/mnt/usb";
        QTest::newRow("base") << "/base/bin/viewer" << "/root/base/bin/viewer";
        QTest::newRow("plot") << "/tmp/rep_plot_3.png" << "/root/tmp/rep_plot_3.png";
        QTest::newRow("same beginning") << "/customer/a" << "/customer/a";
        QTest::newRow("other mount") << "/mnt/usb2/a" << "/mnt/usb2/a";
        QTest::newRow("other temporary file") << "/tmp/a.png" << "/tmp/a.png";
        QTest::newRow("relative") << "cust/a" << "cust/a";
        QTest::newRow("relative upwards") << "../cust/a" << "../cust/a";
        QTest::newRow("out of the root") << "/cust/../.." << "/cust/../..";
        QTest::newRow("out of the instrument's folders") << "/cust/../etc/passwd" << "/cust/../etc/passwd";
        QTest::newRow("out of the plots") << "/tmp/rep_plot_/../../etc/passwd" << "/tmp/rep_plot_/../../etc/passwd";
        QTest::newRow("empty") << "" << "";
        // Cleaned before they move.
        QTest::newRow("doubled slash") << "//cust//a" << "/root/cust/a";
        QTest::newRow("folder") << "/cust/public/reports/" << "/root/cust/public/reports/";
        QTest::newRow("up and down") << "/cust/../mnt/./usb/a" << "/root/mnt/usb/a";
        QTest::newRow("from elsewhere") << "/etc/../base/a" << "/root/base/a";
        QTest::newRow("above the top") << "/../../cust/a" << "/root/cust/a";
        QTest::newRow("above the top from inside") << "/cust/../../../cust/a" << "/root/cust/a";
        QTest::newRow("inside") << "/cust/a/../../cust/b/.." << "/root/cust";
    }
    void pathsOnDisk()
    {
        QFETCH(QString, path);
        QFETCH(QString, moved);
        const QByteArray before = qgetenv("UIUTILS_ROOT");
        qputenv("UIUTILS_ROOT", "/root");
        QCOMPARE(onDisk(path), moved);
        qputenv("UIUTILS_ROOT", "");
        QCOMPARE(onDisk(path), path);
        qputenv("UIUTILS_ROOT", before);
    }

    void durableWriteReplacesWhole()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("report.html"));
        QString error;
        QVERIFY2(writeFileDurably(path, QByteArray(100'000, 'a'), &error), qPrintable(error));
        QVERIFY2(writeFileDurably(path, QByteArray(), &error), qPrintable(error));
        QCOMPARE(contentsOf(path), QByteArray());
        QVERIFY2(writeFileDurably(path, QByteArray("short"), &error), qPrintable(error));
        QCOMPARE(contentsOf(path), QByteArray("short"));
        QVERIFY(writeNewFileDurably(path, "new", &error) == NewFile::Taken);
        QCOMPARE(contentsOf(path), QByteArray("short"));
        QVERIFY(QFile::remove(path) && QFile::link("nowhere", path));
        QVERIFY(writeNewFileDurably(path, "new", &error) == NewFile::Taken && QFile::remove(path));
        QVERIFY2(writeNewFileDurably(path, "new", &error) == NewFile::Written, qPrintable(error));
        QVERIFY(writeNewFileDurably(dir.filePath("none/report.html"), "new", &error) == NewFile::Failed);
        QCOMPARE(namesIn(dir.path()), QStringList {QStringLiteral("report.html")});
    }

    /// What belongs to somebody who lives stays, and so does what is no file of ours.
    void whatKilledProcessesLeftGoes()
    {
        QTemporaryDir dir;
        const auto make = [&](const char* name) {
            const QString path = dir.filePath(name);
            QFile file(path);
            return file.open(QIODevice::WriteOnly) ? path : QString();
        };
        make(".uiutils-left.tmp");
        make(".uiutils-other");
        make("report.tmp");
        QVERIFY(QDir(dir.path()).mkpath(".uiutils-left.dir/below"));
        QVERIFY(QFile::link(dir.filePath("report.tmp"), dir.filePath(".uiutils-link.tmp")));
        const TemporarySibling living(dir.filePath("report.html"));
        const TemporaryFolder folder(dir.path());
        QVERIFY(living.isOpen() && QFileInfo(folder.path()).isDir());
        QVERIFY(writeFileDurably(dir.filePath("report.html"), "x"));
        QStringList expected {".uiutils-link.tmp", ".uiutils-other", QFileInfo(living.path()).fileName(),
                QFileInfo(folder.path()).fileName(), "report.html", "report.tmp"};
        expected.sort();
        QStringList found = namesIn(dir.path());
        found.sort();
        QCOMPARE(found, expected);
    }

    void cleaningLeavesLivingWritersAlone()
    {
        QTemporaryDir dir;
        std::atomic<bool> isOver {false};
        std::thread cleaner([&] {
            while (!isOver)
                removeStaleTemporaries(dir.path());
        });
        int failures = 0;
        QString error;
        for (int i = 0; i < 100; ++i) {
            failures += !writeFileDurably(dir.filePath(QStringLiteral("report.html")), QByteArray("new"), &error);
            const TemporaryFolder folder(dir.path());
            failures += !QFileInfo(folder.path()).isDir();
        }
        isOver = true;
        cleaner.join();
        QVERIFY2(failures == 0, qPrintable(QString::number(failures) + QLatin1Char(' ') + error));
    }
    void writersOfOneTemporaryNameDoNotMix()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("report.pdf"));
        const QString temporary = dir.filePath(QStringLiteral("report_tmp.pdf"));
        {
            TemporarySibling first(path, temporary);
            QVERIFY(first.write("half"));
            QVERIFY(!writeFileDurably(path, "other", nullptr, temporary));
            QVERIFY(first.write(" and whole") && first.sync() && first.renameTo(path));
        }
        QCOMPARE(contentsOf(path), QByteArray("half and whole"));
        QVERIFY(writeFileDurably(path, "other", nullptr, temporary));
        QCOMPARE(namesIn(dir.path()), QStringList {QStringLiteral("report.pdf")});
    }
    void durableWriteTakesTheLongestName()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QString(255, QLatin1Char('n')));
        QVERIFY(writeFileDurably(path, QByteArray("x")));
        QCOMPARE(contentsOf(path), QByteArray("x"));
    }

    void durableWriteDoesNotFollowAPlantedLink()
    {
        QTemporaryDir dir;
        const QString victim = dir.filePath(QStringLiteral("victim"));
        const QString link = dir.filePath(QStringLiteral("rep_plot_0.png"));
        QVERIFY(writeFileDurably(victim, QByteArray("untouched")));
        QVERIFY(QFile::link(victim, link));
        QVERIFY(writeFileDurably(link, QByteArray("new")));
        QCOMPARE(contentsOf(victim), QByteArray("untouched"));
        QCOMPARE(contentsOf(link), QByteArray("new"));
        QVERIFY(!QFileInfo(link).isSymLink());
    }

    void durableWriteKeepsPermissions_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("private") << 0600;
        QTest::newRow("wider than the umask leaves") << 0666;
        QTest::newRow("for reading only") << 0444;
    }
    void durableWriteKeepsPermissions()
    {
        QFETCH(int, mode);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("report.html"));
        const auto modeOf = [](const QString& file) {
            struct stat info = {};
            return ::lstat(QFile::encodeName(file).constData(), &info) == 0 ? int(info.st_mode & 07777) : -1;
        };
        const mode_t umaskBefore = ::umask(027);
        const auto restoreUmask = qScopeGuard([umaskBefore] { ::umask(umaskBefore); });

        QVERIFY(writeFileDurably(path, QByteArray("new")));
        QCOMPARE(modeOf(path), 0640);
        QCOMPARE(::chmod(QFile::encodeName(path).constData(), mode_t(mode)), 0);
        QVERIFY(writeFileDurably(path, QByteArray("replaced")));
        QCOMPARE(modeOf(path), mode);

        const QString link = dir.filePath(QStringLiteral("link"));
        QVERIFY(QFile::link(path, link));
        QVERIFY(writeFileDurably(link, QByteArray("in place of the link")));
        QCOMPARE(modeOf(link), 0640);
    }

    void failedWriteLeavesTheOldFile_data()
    {
        QTest::addColumn<int>("size");
        QTest::newRow("smaller than any buffer") << 100;
        QTest::newRow("larger than any buffer") << 1'000'000;
    }
    void failedWriteLeavesTheOldFile()
    {
        QFETCH(int, size);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("report.html"));
        QVERIFY(writeFileDurably(path, QByteArray("the old report")));

        QString error;
        {
            const FileSizeLimit full(10);
            QVERIFY(!writeFileDurably(path, QByteArray(size, 'n'), &error));
        }
        QVERIFY2(error.contains(path), qPrintable(error));
        QCOMPARE(contentsOf(path), QByteArray("the old report"));
        QCOMPARE(namesIn(dir.path()), QStringList {QStringLiteral("report.html")});
    }

    void targetsThatCannotBeWritten()
    {
        QTemporaryDir dir;
        QString error;
        const QString inNoFolder = dir.filePath(QStringLiteral("missing/report.html"));
        QVERIFY(!writeFileDurably(inNoFolder, QByteArray("x"), &error));
        QVERIFY2(error.contains(inNoFolder), qPrintable(error));

        const QString folder = dir.filePath(QStringLiteral("folder"));
        QVERIFY(QDir().mkdir(folder));
        QVERIFY(!writeFileDurably(folder, QByteArray("x"), &error));
        QVERIFY2(error.contains(folder), qPrintable(error));
        QVERIFY(!writeFileDurably(dir.filePath(QStringLiteral("cut")) + QChar(0) + QLatin1String("off"), "x", &error));
        QVERIFY2(error.contains(QLatin1String("NUL")), qPrintable(error));
        QCOMPARE(namesIn(dir.path()), QStringList {QStringLiteral("folder")});
    }

    void markupText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("clean");
        const QChar high(0xd83d);
        const QChar low(0xde00);
        const QString pair = QString(high) + low;
        const QString replaced(QChar(QChar::ReplacementCharacter));
        QTest::newRow("plain") << QStringLiteral("a\tb\nc\rd <&>\"'") << QStringLiteral("a\tb\nc\rd <&>\"'");
        QTest::newRow("scripts") << QStringLiteral("Ελλάδα 中文 العربية") << QStringLiteral("Ελλάδα 中文 العربية");
        QTest::newRow("controls") << QString(QLatin1String("a\0b\x01\x1f\x7f", 6)) + QChar(0x85) + QLatin1Char('c')
                                  << QStringLiteral("abc");
        QTest::newRow("pair") << QString(QLatin1Char('x') + pair) << QString(QLatin1Char('x') + pair);
        QTest::newRow("high alone") << QString(QString(high) + QLatin1Char('x')) << QString(replaced + QLatin1Char('x'));
        QTest::newRow("high at the end") << QString(QLatin1Char('x') + QString(high))
                                         << QString(QLatin1Char('x') + replaced);
        QTest::newRow("low before high") << QString(QString(low) + high) << QString(replaced + replaced);
        QTest::newRow("high before a pair") << QString(QString(high) + pair) << QString(replaced + pair);
        QTest::newRow("non-characters") << QString(QString(QChar(0xfffe)) + QChar(0xffff) + QChar(0xfffd))
                                        << QString(replaced + replaced + replaced);
        QTest::newRow("private use") << QString(QChar(0xe000)) << QString(QChar(0xe000));
    }
    void markupText()
    {
        QFETCH(QString, text);
        QFETCH(QString, clean);
        QCOMPARE(uiutils::markupText(text), clean);
    }
};

QTEST_GUILESS_MAIN(CoreTest)
#include "tst_core.moc"
