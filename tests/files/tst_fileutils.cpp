#include "files.h"

#include "files/drivespace_p.h"
#include "files/fileutils.h"

#include <kiv/kivnotificationmodelmanager.h>

#include <QtTest>

#include <functional>
#include <limits>
#include <sys/resource.h>
#include <sys/statvfs.h>

using Arguments = QMap<QString, QString>;
using Operation = std::function<void(FileUtils&)>;

Q_DECLARE_METATYPE(KIVNotification*)

namespace {

constexpr qint64 block = 4096;

KIVNotificationModelManager* manager()
{
    return KIVNotificationModelManager::instance();
}

struct Drive
{
    QByteArray asked;
    bool isSilent = false;
};

Drive drive;

} // namespace

/// Replaces the system's function in this process.
extern "C" int statvfs(const char* path, struct statvfs* answer) noexcept
{
    drive.asked = path;
    *answer = {};
    answer->f_bsize = block;
    answer->f_frsize = 1024;
    answer->f_blocks = 1000;
    answer->f_bfree = 16;
    answer->f_bavail = 8;
    return drive.isSilent ? -1 : 0;
}

class FileUtilsTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_root;

    /// The path on the test's disk of an instrument path.
    QString onDisk(const QString& path) const { return m_root.path() + path; }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_root.isValid());
        qputenv("UIUTILS_ROOT", QFile::encodeName(m_root.path()));
        QVERIFY(QDir().mkpath(onDisk("/cust/public/folder")));
        QVERIFY(QDir().mkpath(onDisk("/mnt/usb")));
    }
    void cleanup()
    {
        manager()->clear();
        QVERIFY(!manager()->currentDialog());
    }

    void displayPaths()
    {
        // Only one mark and one folder are replaced, only at the beginning, and with the right case.
        const std::pair<const char*, const char*> rows[] {{"/cust/public/reports/a.pdf", "Internal:/reports/a.pdf"},
                {"/mnt/usb/a", "USB:/a"}, {"copy:/cust/public/a", "Internal:/a"}, {"cut:/mnt/usb/a", "USB:/a"},
                {"copy:cut:/mnt/usb/a", "cut:/mnt/usb/a"},
                {"/cust/public/mnt/usb/cust/public", "Internal:/mnt/usb/cust/public"},
                {"Copy:/CUST/public", "Copy:/CUST/public"}, {"/tmp/copy:/mnt/usb", "/tmp/copy:/mnt/usb"}, {"", ""},
                {u8"cut:/mnt/usb/a\nb\u2028c\u202egpj.exe", "USB:/a b cgpj.exe"}, {u8"/mnt/usb/\u0645\u200c.pdf", u8"USB:/\u0645\u200c.pdf"}};
        for (const auto& [path, shown] : rows)
            QCOMPARE(FileUtils().getSanitizedPathName(path), QString(shown));
    }

    void notifications()
    {
        const auto error = KIVNotification::Error;
        const auto request = KIVNotification::Request;
        const std::tuple<Operation, KIVNotification::Kind, QString, QString, int> rows[] {
                {[](FileUtils& f) { f.sendNotificationDriveFull("/mnt/usb"); },
                        error, "I/O Error", "Drive USB: is full", 1},
                {[](FileUtils& f) { f.sendNotificationReadError("/cust/public/%1.txt"); },
                        error, "Read Error", "There was an error reading Internal:/%1.txt", 1},
                {[](FileUtils& f) { f.sendNotificationWriteError("cut:/mnt/usb/a"); },
                        error, "Write Error", "There was an error writing to USB:/a", 1},
                {[](FileUtils& f) { f.sendNotificationNotEnoughSpace("/mnt/usb/%2", 1'500'000'000); },
                        error, "Not Enough Space", "Not enough disk space for USB:/%2 - would need 1.50 G", 0},
                {[](FileUtils& f) { f.sendNotificationOverwriteRequest("/cust/public/%2", {}); },
                        request, "File Exists", "Do you want to overwrite File Internal:/%2?", 0},
                {[](FileUtils& f) { f.sendNotificationOverwriteRequest("/cust/public/folder", {}); },
                        request, "File Exists", "Do you want to overwrite Directory Internal:/folder?", 0},
                {[](FileUtils& f) { f.sendNotificationOverwriteRequest("", {}); },
                        request, "File Exists", "Do you want to overwrite all files/directories?", 0},
                {[](FileUtils& f) { f.sendNotificationOverwriteReportRequest("/cust/public/reports/a.pdf", {}); },
                        request, "Report Exists", "Do you want to overwrite report Internal:/reports/a.pdf?", 0},
                {[](FileUtils& f) { f.sendNotificationOverwriteReportRequest("/cust/public/a.pdf.gz", {}); },
                        request, "Report Exists", "Do you want to overwrite report Internal:/a.pdf?", 0},
                {[](FileUtils& f) { f.sendNotificationOverwriteReportRequest("/cust/public/a.html.gz", {}); },
                        request, "Report Exists", "Do you want to overwrite report Internal:/a.html.gz?", 0},
                {[](FileUtils& f) { f.sendNotificationOverwriteScreenshotRequest("/cust/public/s.png", "i.png", {}); },
                        request, "File Exists", "Do you want to overwrite screenshot Internal:/s.png?", 0},
                {[](FileUtils& f) { f.sendNotificationDeleteRequest("/mnt/usb/%1", {}); },
                        request, "Delete File", "Do you want to delete the File USB:/%1?", 0},
                {[](FileUtils& f) { f.sendNotificationDeleteRequest("cut:/cust/public/folder", {}); },
                        request, "Delete Directory", "Do you want to delete the Directory Internal:/folder?", 0},
                {[](FileUtils& f) { f.sendNotificationDeleteRequest("/mnt/usb/a\n/mnt/usb/b", {}); },
                        request, "Delete Files", "Do you want to delete these 2 files?", 0}};
        for (const auto& [operation, kind, title, text, trayEntries] : rows) {
            FileUtils files;
            operation(files);
            const KIVNotification* dialog = manager()->currentDialog();
            QVERIFY2(dialog, qPrintable(text));
            QCOMPARE(dialog->msg(), text);
            QCOMPARE(dialog->kind(), kind);
            QCOMPARE(dialog->longLabel(), title);
            QCOMPARE(manager()->count(), trayEntries);
            const QString verbs = dialog->value("acceptText").toString() + '/' + dialog->value("rejectText").toString();
            QCOMPARE(verbs, QString(title.startsWith("Delete") ? "Delete/Keep" : kind == request ? "Overwrite/Keep" : "/"));
            QCOMPARE(dialog->value("details").toString(), QString(title == "Delete Files" ? "USB:/a\nUSB:/b" : ""));
            if (trayEntries == 1) {
                const QModelIndex entry = manager()->index(0);
                QCOMPARE(entry.data(KIVNotificationModelManager::LongLabelRole).toString(), title);
                QCOMPARE(entry.data(KIVNotificationModelManager::MsgRole).toString(), text);
            }
            manager()->clear();
        }
    }

    void amounts()
    {
        const auto restore = qScopeGuard([before = QLocale()] { QLocale::setDefault(before); });
        QLocale::setDefault(QLocale(QLocale::German));
        // The last in single precision.
        const std::pair<qint64, QString> rows[] {{100, "0.00 K"}, {999, "0.00 K"}, {1000, "1.00 K"},
                {1'000'000, "1.00 M"}, {999'999'999, "1000.00 M"}, {1'000'000'000, "1.00 G"}, {999'995'000, "999.99 M"}};
        for (const auto& [bytes, text] : rows) {
            FileUtils files;
            files.sendNotificationNotEnoughSpace("/mnt/usb", bytes);
            QCOMPARE(manager()->currentDialog()->msg(), "Not enough disk space for USB: - would need " + text);
        }
    }

    void values()
    {
        const Arguments arguments {{"step", "2"}, {"name", "x"}, {"acceptText", "Replace"}};
        const auto kept = [](const char* key) { return manager()->currentDialog()->value(key).toString(); };
        FileUtils files;
        files.sendNotificationDeleteRequest("cut:/mnt/usb/a\n/mnt/usb/b", arguments);
        QCOMPARE(kept("Filename"), QString("cut:/mnt/usb/a\n/mnt/usb/b"));
        QCOMPARE(kept("step") + kept("name"), QString("2x"));
        manager()->reject();
        files.sendNotificationOverwriteRequest("/mnt/usb/a", arguments);
        QCOMPARE(kept("step") + kept("name"), QString("2x"));
        manager()->reject();
        files.sendNotificationOverwriteReportRequest("/mnt/usb/a.pdf.gz", arguments);
        QCOMPARE(kept("Filename") + kept("name"), QString("/mnt/usb/a.pdf.gzx"));
        manager()->reject();
        files.sendNotificationOverwriteScreenshotRequest("/mnt/usb/s.png", "/base/i.png", {{"Filename", "mine"}});
        QCOMPARE(kept("Filename") + kept("IconFile"), QString("mine/base/i.png"));
        manager()->reject();
        files.sendNotificationDeleteRequest(QString("/mnt/usb/a\n").repeated(102) + "/mnt/usb/z", arguments);
        QCOMPARE(kept("details").count('\n'), 100);
        QVERIFY(kept("details").endsWith("USB:/a\nand 3 more"));
        QCOMPARE(kept("acceptText") + kept("rejectText"), QString("ReplaceKeep"));
    }

    void namesOfFiles()
    {
        const FileUtils files;
        const std::pair<QString, QString> rows[] {{"a.b", ""}, {QString("<\\|\"*a<"), "The name must not contain < \\ | \" *"}, {"a\r", "The name must not contain control characters"},
                {u8"\u202efdp.exe", "The name must not contain control characters"}, {u8"\u0645\u06cc\u200c\u062e", ""},
                {"LPT1", "Computers do not allow the name \"LPT1\""}, {"nul .txt", "Computers do not allow the name \"nul .txt\""}, {"lpt0", ""},
                {QString(255, 'x'), ""}, {QString(256, 'x'), "The name may have 255 characters, it has 256"},
                {QString(128, QChar(0xfc)), "The name may have 127 characters, it has 128"}, {QString::fromUtf8("😀").repeated(64), "The name may have 63 characters, it has 64"}};
        for (const auto& [name, problem] : rows)
            QCOMPARE(files.fileNameProblem(name), problem);
    }

    void answersThatAreNotTheirs()
    {
        FileUtils files;
        QSignalSpy accepted(&files, &FileUtils::accepted);
        QSignalSpy rejected(&files, &FileUtils::rejected);
        KIVNotification other;
        const auto answer = [&](const QVector<KIVNotification*>& notifications) {
            for (KIVNotification* notification : notifications) {
                files.onNotificationAccepted(notification);
                files.onNotificationRejected(notification);
            }
        };
        answer({&other, nullptr});
        files.sendNotificationOverwriteRequest("/mnt/usb/a", {});
        KIVNotification* own = manager()->currentDialog();
        answer({&other, nullptr});
        QCOMPARE(accepted.size() + rejected.size(), 0);

        other.setValue("uid", own->value("uid"));
        answer({&other});
        QCOMPARE(accepted.size() * rejected.size(), 1);
        for (KIVNotification* notification : {&other, own})
            notification->setValue("uid", QVariant());
        answer({&other, own});
        QCOMPARE(accepted.size() * rejected.size(), 1);
        // The second is asked when the first has been answered.
        FileUtils second;
        QSignalSpy declined(&second, &FileUtils::rejected);
        second.sendNotificationOverwriteRequest("/mnt/usb/b", {});
        manager()->accept();
        manager()->reject();
        QCOMPARE(declined.size(), 1);
        QCOMPARE(accepted.size() * rejected.size(), 1);
    }

    void theLastQuestionCounts()
    {
        FileUtils files;
        QSignalSpy accepted(&files, &FileUtils::accepted);
        files.sendNotificationOverwriteRequest("/mnt/usb/a", {});
        const QPointer<KIVNotification> first = manager()->currentDialog();
        files.sendNotificationOverwriteRequest("/mnt/usb/b", {});
        // Answered at the same moment.
        manager()->accept();
        QCOMPARE(accepted.size(), 0);
        QTRY_VERIFY(!first);
        QCOMPARE(manager()->currentDialog()->msg(), QString("Do you want to overwrite File USB:/b?"));
        files.sendNotificationOverwriteRequest("/mnt/usb/c", {});
        QTRY_COMPARE(manager()->waitingDialogs(), 0);
        manager()->accept();
        QCOMPARE(accepted.size(), 1);
    }

    void anAnswerMayRaiseTheNextQuestion()
    {
        FileUtils files;
        QStringList answered;
        connect(&files, &FileUtils::accepted, this, [&](const KIVNotification* notification) {
            answered.append(notification->value("Filename").toString());
            if (answered.size() == 1)
                files.sendNotificationDeleteRequest("/mnt/usb/b", {});
            answered.append(notification->longLabel());
        });
        files.sendNotificationDeleteRequest("/mnt/usb/a", {});
        manager()->accept();
        QVERIFY(manager()->currentDialog());
        manager()->accept();
        QCOMPARE(answered, (QStringList {"/mnt/usb/a", "Delete File", "/mnt/usb/b", "Delete File"}));
    }

    void questionsGoWithTheirAsker()
    {
        auto files = std::make_unique<FileUtils>();
        files->sendNotificationWriteError("/mnt/usb/a");
        files.reset();
        QVERIFY(!manager()->currentDialog());
        QCOMPARE(manager()->count(), 1);
        manager()->accept();
    }

    void treeSizes()
    {
        const QString source = "/cust/public/tree";
        writeFile(onDisk(source + "/empty"), QByteArray(0, 'x'));
        writeFile(onDisk(source + "/one"), QByteArray(1, 'x'));
        writeFile(onDisk(source + "/exact"), QByteArray(block, 'x'));
        writeFile(onDisk(source + "/a/b/c %1"), QByteArray(block + 1, 'x'));
        FileUtils files;
        QCOMPARE(files.getDirSize(source, "/mnt/usb/new", block), qint64(4));
        QCOMPARE(files.getDirSize(source, "/mnt/usb/new", 1), 2 * block + 2);
        QCOMPARE(files.getDirSize(source, "/mnt/usb/new", 0), qint64(0));

        writeFile(onDisk("/mnt/usb/old/a/b/c %1"), QByteArray(5 * block, 'x'));
        writeFile(onDisk("/mnt/usb/old/elsewhere"), QByteArray(5 * block, 'x'));
        QCOMPARE(files.getDirSize(source, "/mnt/usb/old", block), qint64(4 - 5));

        QTest::ignoreMessage(QtCriticalMsg, "FileUtils::getDirSize - source path /cust/public/no%s does not exist");
        QCOMPARE(files.getDirSize("/cust/public/no%s", "/mnt/usb", block), qint64(0));
        QTest::ignoreMessage(QtCriticalMsg, "FileUtils::checkDriveSpaceForDir - source path /cust/none does not exist");
        QVERIFY(!files.checkDriveSpaceForDir("/cust/none", "/mnt/usb"));
    }

    /// Each folder counts once, on one drive, however links lead to it.
    void linksBetweenFolders()
    {
        const QString source = "/cust/public/links";
        writeFile(onDisk(source + "/0/file"), QByteArray(1, 'x'));
        QVERIFY(QFile::link(onDisk(source), onDisk(source + "/0/up")));
        QVERIFY(QFile::link("nowhere", onDisk(source + "/0/dangling")));
        QVERIFY(QFile::link("/sys/kernel", onDisk(source + "/0/elsewhere")));
        // Walking every path would take two to the thirtieth steps.
        for (int level = 1; level <= 30; ++level) {
            const QString folder = QString("%1/%2").arg(onDisk(source)).arg(level);
            QVERIFY(QDir().mkdir(folder));
            for (const char* name : {"/a", "/b"})
                QVERIFY(QFile::link(QString("../%1").arg(level - 1), folder + name));
        }
        FileUtils files;
        QCOMPARE(files.getDirSize(source, "/mnt/usb/new", block), qint64(1));
        QString problem;
        QCOMPARE(uiutils::blocksOfTree(source, "/mnt/usb/new", block, &problem, 95), std::optional<qint64>(1));
        QVERIFY(!uiutils::blocksOfTree(source, "/mnt/usb/new", block, &problem, 94));
        QCOMPARE(problem, QString("has more than 94 files and folders"));
    }

    /// Files below more folders than may be open count; when no more can be opened, the check fails.
    void deepTrees()
    {
        writeFile(onDisk("/cust/public/deep/" + QString("a/").repeated(300) + "file"), QByteArray(100 * block, 'x'));
        struct rlimit before = {};
        QCOMPARE(::getrlimit(RLIMIT_NOFILE, &before), 0);
        const auto restore = qScopeGuard([&] { ::setrlimit(RLIMIT_NOFILE, &before); });
        const auto limitTo = [&](rlim_t files) {
            const struct rlimit limit = {files, before.rlim_max};
            ::setrlimit(RLIMIT_NOFILE, &limit);
        };
        limitTo(100);
        FileUtils files;
        QCOMPARE(files.getDirSize("/cust/public/deep", "/mnt/usb/new", block), qint64(100));
        limitTo(0);
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("cannot be counted at .*/cust/public/deep: Too many"));
        QVERIFY(!files.checkDriveSpaceForDir("/cust/public/deep", "/mnt/usb/new"));
    }

    /// On a drive with 8 blocks for everybody and 8 more for the system.
    void roomToTheBlock()
    {
        const QString stick = QString::fromUtf8("/mnt/usb/stück");
        const QString target = stick + "/new/not/there/a";
        QVERIFY(QDir().mkpath(onDisk(stick)));
        const auto missing = [](const QString& path, const QString& amount) {
            const QString text = "Not enough disk space for " + path + " - would need " + amount;
            const bool isSaid = manager()->currentDialog() && manager()->currentDialog()->msg() == text;
            manager()->accept();
            return isSaid;
        };
        FileUtils files;
        QVERIFY(files.checkDriveSpaceForFile(8 * block, target));
        // The nearest existing folder decides.
        QCOMPARE(drive.asked, QFile::encodeName(onDisk(stick)));
        QVERIFY(!manager()->currentDialog());
        QVERIFY(!files.checkDriveSpaceForFile(8 * block + 1, target));
        QVERIFY(missing(QString::fromUtf8("USB:/stück/new/not/there/a"), "4.10 K"));
        QCOMPARE(manager()->count(), 0);
        QVERIFY(!files.checkDriveSpaceForFile(std::numeric_limits<qint64>::max(), "/mnt/usb/a"));
        QVERIFY(manager()->currentDialog()->msg().startsWith("Not enough disk space for USB:/a - would need 92"));
        manager()->accept();

        writeFile(onDisk("/cust/public/big/a"), QByteArray(10 * block, 'x'));
        QVERIFY(!files.checkDriveSpaceForFile(QString("/cust/public/big/a"), target));
        QVERIFY(missing(QString::fromUtf8("USB:/stück/new/not/there/a"), "8.19 K"));
        QVERIFY(!files.checkDriveSpaceForDir("/cust/public/big", stick));
        QVERIFY(missing(QString::fromUtf8("USB:/stück"), "8.19 K"));
        // An overwritten file frees its blocks.
        writeFile(onDisk(stick + "/a"), QByteArray(2 * block, 'x'));
        QVERIFY(files.checkDriveSpaceForFile(10 * block, stick + "/a"));
        QVERIFY(files.checkDriveSpaceForDir("/cust/public/big", stick));

        // If nothing of the path exists, or the system gives no answer, there is no notification.
        QVERIFY(!files.checkDriveSpaceForFile(qint64(0), "/no such folder of a test/a"));
        QVERIFY(!files.checkDriveSpaceForFile(qint64(0), ""));
        drive.isSilent = true;
        const auto restore = qScopeGuard([] { drive.isSilent = false; });
        QVERIFY(!files.checkDriveSpaceForFile(qint64(0), target));
        QVERIFY(!files.checkDriveSpaceForDir("/cust/public/big", stick));
        QVERIFY(!manager()->currentDialog());
    }
};

QTEST_GUILESS_MAIN(FileUtilsTest)
#include "tst_fileutils.moc"
