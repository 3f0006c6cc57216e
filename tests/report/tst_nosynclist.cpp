#include "files.h"

#include <QFileSystemWatcher>
#include <QtTest>

#include "report/saving/nosynclist_p.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

constexpr int processes = 4;
constexpr int edits = 1000;
/// Each report has a line, and so has its metadata record.
constexpr int linesPerReport = 2;
constexpr int keptReports = edits / 5;

const QString listPath("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt");

QString reportOf(int process, int number)
{
    return QString("/cust/public/reports/otdr/process %1 report %2.pdf").arg(process).arg(number);
}

/// The edits of one process: of five, three add a report and two remove one.
int runEditor(int process)
{
    QString error;
    int added = 0;
    int removed = 0;
    for (int i = 0; i < edits; ++i) {
        const bool isAdding = i % 5 < 3;
        const bool isDone = isAdding ? uiutils::addToNoSyncList({reportOf(process, added)}, &error)
                                     : uiutils::removeFromNoSyncList({reportOf(process, removed)}, &error);
        if (isDone) {
            ++(isAdding ? added : removed);
        } else if (error.contains("lock")) {
            // A busy machine may keep the others from finishing in time.
            --i;
        } else {
            std::fprintf(stderr, "edit %d of process %d: %s\n", i, process, qPrintable(error));
            return 1;
        }
    }
    return 0;
}

/// Complete lines, and none of them twice.
bool isWhole(const QByteArray& text)
{
    const QByteArrayList lines = text.split('\n');
    static const QRegularExpression line("^(/cust/public/reports/otdr/process .*\\.(pdf|json))?$");
    return lines.last().isEmpty() && QSet<QByteArray>(lines.cbegin(), lines.cend()).size() == lines.size()
            && std::all_of(lines.cbegin(), lines.cend(), [](const QByteArray& text) { return line.match(text).hasMatch(); });
}

} // namespace

class NoSyncListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void severalProcessesLoseNothing()
    {
        // A memory file system: a disk that syncs every edit would show nothing more.
        const bool hasMemory = QFileInfo("/dev/shm").isWritable();
        const QTemporaryDir root(hasMemory ? "/dev/shm/uiutils-test-XXXXXX" : QDir::tempPath() + "/uiutils-test-XXXXXX");
        QVERIFY(root.isValid());
        qputenv("UIUTILS_ROOT", QFile::encodeName(root.path()));
        const QString folder = QFileInfo(root.path() + listPath).path();
        QVERIFY(QDir().mkpath(folder));
        QFileSystemWatcher watcher({folder});
        std::vector<std::unique_ptr<QProcess>> editors;
        for (int i = 0; i < processes; ++i) {
            editors.push_back(std::make_unique<QProcess>());
            editors.back()->setProcessChannelMode(QProcess::ForwardedErrorChannel);
            editors.back()->start(QCoreApplication::applicationFilePath(), {"--edit", QString::number(i)});
        }
        const auto isRunning = [](const auto& editor) { return editor->state() != QProcess::NotRunning; };
        // A look at the list whenever something in its folder has changed.
        int looks = 0, broken = 0;
        connect(&watcher, &QFileSystemWatcher::directoryChanged, this, [&] {
            broken += QFile::exists(root.path() + listPath) && !isWhole(contentsOf(root.path() + listPath));
            ++looks;
        });
        while (std::any_of(editors.cbegin(), editors.cend(), isRunning))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QVERIFY(looks > 10);
        QCOMPARE(broken, 0);
        for (const auto& editor : editors)
            QCOMPARE(editor->exitCode(), 0);
        const QByteArray text = contentsOf(root.path() + listPath);
        QVERIFY(isWhole(text));
        QCOMPARE(text.count('\n'), processes * keptReports * linesPerReport);
        for (int process = 0; process < processes; ++process) {
            for (int number = edits * 2 / 5; number < edits * 3 / 5; ++number)
                QVERIFY(text.contains(reportOf(process, number).toUtf8() + '\n'));
        }
        QCOMPARE(namesIn(folder), QStringList("nosync_fileList.txt"));
    }
};

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--edit")
        return runEditor(QByteArray(argv[2]).toInt());
    NoSyncListTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_nosynclist.moc"
