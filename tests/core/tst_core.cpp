#include "columns.h"
#include "filesizelimit.h"
#include "files.h"

#include "base/durablefile_p.h"
#include "base/paths_p.h"
#include "base/temporaries_p.h"
#include "base/temporaryfolder_p.h"
#include "base/temporarysibling_p.h"

#include <atomic>
#include <dlfcn.h>
#include <functional>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace uiutils;

namespace {

/// Something that another process does at the worst moment: once, when a file is locked or examined.
std::function<void()> onceLocked;
std::function<void()> onceSeen;
bool isSomebodyElse = false;

void happens(std::function<void()>& deed)
{
    if (deed)
        std::exchange(deed, nullptr)();
}

/// What a killed process leaves: a folder with a file in a subfolder.
QString leftFolder(const QString& parent)
{
    if (const pid_t child = ::fork()) {
        ::waitpid(child, nullptr, 0);
        return parent + '/' + QDir(parent).entryList({".uiutils-*.dir"}, QDir::Dirs | QDir::Hidden).value(0, "none");
    }
    const TemporaryFolder folder(parent);
    QDir().mkpath(folder.filePath("below"));
    QFile(folder.filePath("below/file")).open(QIODevice::WriteOnly);
    ::_exit(0);
}

} // namespace

// These replace the system's functions.
extern "C" int flock(int fd, int operation) noexcept
{
    const int result = reinterpret_cast<decltype(&flock)>(::dlsym(RTLD_NEXT, "flock"))(fd, operation);
    happens(onceLocked);
    return result;
}
// Where files may need more than 32 bits, this one is called fstatat64 in the object; elsewhere that is a second name.
extern "C" int fstatat(int folder, const char* name, struct stat* entry, int flags) noexcept
{
    const int result = reinterpret_cast<decltype(&fstatat)>(::dlsym(RTLD_NEXT, "fstatat64"))(folder, name, entry, flags);
    if (qstrcmp(name, "below") == 0)
        happens(onceSeen);
    return result;
}
extern "C" uid_t geteuid() noexcept
{
    return reinterpret_cast<decltype(&geteuid)>(::dlsym(RTLD_NEXT, "geteuid"))() + (isSomebodyElse ? 1 : 0);
}

class CoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pathsOnDisk()
    {
        const std::pair<const char*, const char*> rows[] {{"//cust//a", "/cust/a"},
                {"/cust/../mnt/./usb/a", "/mnt/usb/a"}, {"/etc/../base/a", "/base/a"}, {"/../../cust/a", "/cust/a"},
                {"/cust/../../../cust/a", "/cust/a"}, {"/cust/a/../../cust/b/..", "/cust"}};
        const auto restore = qScopeGuard([before = qgetenv("UIUTILS_ROOT")] { qputenv("UIUTILS_ROOT", before); });
        qputenv("UIUTILS_ROOT", "/root of mine");
        for (const char* path : {"/cust/public/reports/a.html", "/cust", "/mnt/usb/a.html", "/mnt/usb", "/base/bin/viewer",
                     "/tmp/rep_plot_3.png", "/cust/public/reports/"})
            QCOMPARE(onDisk(path), QString("/root of mine") + path);
        for (const auto& [path, place] : rows)
            QCOMPARE(onDisk(path), QString("/root of mine") + place);
        for (const char* path : {"/customer/a", "/mnt/usb2/a", "/tmp/a.png", "cust/a", "../cust/a", "/cust/../..",
                     "/cust/../etc/passwd", "/tmp/rep_plot_/../../etc/passwd", ""})
            QCOMPARE(onDisk(path), QString(path));
        qputenv("UIUTILS_ROOT", "");
        for (const char* path : {"//cust//a", "/cust/../mnt/./usb/a", "/mnt/usb", "/etc/../base/a"})
            QCOMPARE(onDisk(path), QString(path));
    }

    /// Neither the instrument's own folders are used, nor folders whose names only look alike.
    void aRootThatIsNotText()
    {
        const QTemporaryDir dir;
        const QByteArray before = qgetenv("UIUTILS_ROOT");
        const auto restore = qScopeGuard([before] { qputenv("UIUTILS_ROOT", before); });
        qputenv("UIUTILS_ROOT", QFile::encodeName(dir.path()) + "/\xff\xc3\xbc");
        QVERIFY2(rootProblem().contains("UTF-8"), qPrintable(rootProblem()));
        QTest::ignoreMessage(QtWarningMsg, qPrintable(rootProblem()));
        for (const char* folder : {"/cust/public/reports", "/mnt/usb", "/base"}) {
            QString error;
            const QString path = onDisk(folder);
            QVERIFY(!makeFolderDurably(path) && !QDir().mkpath(path) && !writeFileDurably(path, "x", &error));
            QVERIFY2(error.contains("UIUTILS_ROOT cannot be used"), qPrintable(error));
        }
        QVERIFY(namesIn(dir.path()).isEmpty() && onDisk("/etc/hosts") == "/etc/hosts");
        qputenv("UIUTILS_ROOT", "/tmp/\xc3\xbc");
        QCOMPARE(rootProblem(), QString());
    }

    void durableWriteReplacesCompletely()
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
        const QString longest = dir.filePath(QString(255, 'n'));
        QVERIFY(writeFileDurably(longest, "x") && contentsOf(longest) == "x");
    }

    /// Files of a living process stay, and so do files that are not ours.
    void whatKilledProcessesLeftIsRemoved()
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
        QVERIFY(leftFolder(dir.path()).endsWith(".dir"));
        // Reports may be in a folder with the same name.
        QVERIFY(QDir(dir.path()).mkpath(".uiutils-reports.dir") && !make(".uiutils-reports.dir/a.pdf").isEmpty());
        QVERIFY(QFile::link(dir.filePath("report.tmp"), dir.filePath(".uiutils-link.tmp")));
        const TemporarySibling living(dir.filePath("report.html"));
        const TemporaryFolder folder(dir.path());
        QVERIFY(living.isOpen() && QFileInfo(folder.path()).isDir());
        QVERIFY(writeFileDurably(dir.filePath("report.html"), "x"));
        QVERIFY(QFile::exists(dir.filePath(".uiutils-reports.dir/a.pdf")));
        QStringList expected {".uiutils-link.tmp", ".uiutils-other", ".uiutils-reports.dir", QFileInfo(living.path()).fileName(),
                QFileInfo(folder.path()).fileName(), "report.html", "report.tmp"};
        expected.sort();
        QStringList found = namesIn(dir.path());
        found.sort();
        QCOMPARE(found, expected);
    }

    /// A user who may write beside the target must not make us remove what only we may remove.
    void cleaningRemovesNothingElsewhere_data()
    {
        addColumns<QString, bool>();
        QTest::newRow("links within") << QString() << false;
        QTest::newRow("swapped for a link") << "." << false;
        QTest::newRow("a folder within, swapped for a link") << "below" << false;
        QTest::newRow("somebody else's") << QString() << true;
    }
    void cleaningRemovesNothingElsewhere()
    {
        const auto [swapped, isStrangers] = currentRow<QString, bool>();
        QTemporaryDir dir;
        const QString victim = dir.filePath("victim");
        QVERIFY(QDir().mkpath(victim) && writeFileDurably(victim + "/kept", "x"));
        const QString left = leftFolder(dir.path());
        QVERIFY(QFile::link(victim, left + "/link") && QFile::link(victim, left + "/below/link"));
        const QString place = QDir::cleanPath(left + '/' + swapped);
        (swapped == "." ? onceLocked : onceSeen) = [&, swapped = swapped] {
            if (!swapped.isEmpty() && QDir().rename(place, dir.filePath("aside")))
                QFile::link(victim, place);
        };
        isSomebodyElse = isStrangers;
        removeStaleTemporaries(dir.path());
        isSomebodyElse = false;
        QCOMPARE(namesIn(victim), QStringList {"kept"});
        QCOMPARE(onceLocked || onceSeen, isStrangers);
        onceSeen = nullptr;
        QCOMPARE(QFileInfo(left).isDir(), isStrangers || !swapped.isEmpty());
        QCOMPARE(QFile::exists(left + "/below/file"), isStrangers);
        removeStaleTemporaries(dir.path());
        QCOMPARE(QFileInfo(left).isSymLink(), swapped == ".");
        QCOMPARE(QFileInfo(left).isDir(), swapped == ".");
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
            {
                // The folder can still be opened, the file cannot: without a look at the lock the file stays.
                const int next = ::dup(0);
                ::close(next);
                struct rlimit before = {};
                ::getrlimit(RLIMIT_NOFILE, &before);
                const struct rlimit limit = {rlim_t(next) + 1, before.rlim_max};
                ::setrlimit(RLIMIT_NOFILE, &limit);
                const auto restore = qScopeGuard([&] { ::setrlimit(RLIMIT_NOFILE, &before); });
                QVERIFY(!removeUnlessHeld(temporary) && errno == EMFILE);
            }
            QVERIFY(first.write(" and whole") && first.sync() && first.renameTo(path));
        }
        QCOMPARE(contentsOf(path), QByteArray("half and whole"));
        // A link at that path is removed, not its target.
        QVERIFY(QFile::link(path, temporary));
        QVERIFY(writeFileDurably(path, "other", nullptr, temporary));
        QCOMPARE(namesIn(dir.path()), QStringList {QStringLiteral("report.pdf")});
    }
    void durableWriteKeepsPermissions()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("report.html");
        const auto modeOf = [](const QString& file) {
            struct stat info = {};
            return ::lstat(QFile::encodeName(file).constData(), &info) == 0 ? int(info.st_mode & 07777) : -1;
        };
        const auto restoreUmask = qScopeGuard([before = ::umask(027)] { ::umask(before); });
        QVERIFY(writeFileDurably(path, "new"));
        QCOMPARE(modeOf(path), 0640);
        // Private, wider than the umask allows, and read-only.
        for (const int mode : {0600, 0666, 0444}) {
            QCOMPARE(::chmod(QFile::encodeName(path).constData(), mode_t(mode)), 0);
            QVERIFY(writeFileDurably(path, "replaced"));
            QCOMPARE(modeOf(path), mode);
        }
        // A planted link is replaced, not followed.
        const QString link = dir.filePath("link");
        QVERIFY(QFile::link(path, link));
        QVERIFY(writeFileDurably(link, "in place of the link"));
        QCOMPARE(modeOf(link), 0640);
        QVERIFY(!QFileInfo(link).isSymLink());
        QCOMPARE(contentsOf(path) + ' ' + contentsOf(link), QByteArray("replaced in place of the link"));
    }

    /// Larger than any buffer.
    void failedWriteLeavesTheOldFile()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("report.html"));
        QVERIFY(writeFileDurably(path, QByteArray("the old report")));

        QString error;
        {
            const FileSizeLimit full(10);
            QVERIFY(!writeFileDurably(path, QByteArray(1'000'000, 'n'), &error));
        }
        QVERIFY2(error.contains(path), qPrintable(error));
        QCOMPARE(contentsOf(path), QByteArray("the old report"));
        QCOMPARE(namesIn(dir.path()), QStringList {QStringLiteral("report.html")});

        const QString folder = dir.filePath("folder");
        QVERIFY(QDir().mkdir(folder) && QFile::remove(path));
        for (const QString& target : {dir.filePath("missing/report.html"), folder, dir.filePath("cut") + QChar(0) + "off"}) {
            QVERIFY(!writeFileDurably(target, "x", &error));
            QVERIFY2(error.contains(target.contains(QChar(0)) ? "NUL" : target), qPrintable(error));
        }
        QCOMPARE(namesIn(dir.path()), QStringList {"folder"});
    }
};

QTEST_GUILESS_MAIN(CoreTest)
#include "tst_core.moc"
