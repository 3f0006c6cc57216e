#include "draftfixture.h"

#include "report/drafts/draftfile_p.h"
#include "report/drafts/draftwriter_p.h"

#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// How often the folder of drafts was synced while it was watched and empty: by the page's own thread, and by others.
struct
{
    std::atomic_bool isWatched {false};
    std::atomic_int byPage {0}, byOthers {0};
} syncs;

/// Keeps numbers until it is killed, and prints each that is safe.
int keepNumbers()
{
    QCoreApplication::setApplicationName(application);
    Run run;
    QFile out;
    if (!out.open(1, QIODevice::WriteOnly | QIODevice::Unbuffered))
        return 1;
    for (int i = 1;; ++i) {
        run.measure(number(i), QString(50'000, QChar('a' + i % 26)) + QString::number(i));
        if (i % 3 == 0 && !run.draft.flush())
            return 1;
        if (i % 3 == 0)
            out.write(QByteArray::number(i) + '\n');
        QCoreApplication::processEvents();
    }
}

} // namespace

/// Replaces the C library's function.
extern "C" int fsync(int fd)
{
    const QString path = syncs.isWatched ? QFile::symLinkTarget(QString("/proc/self/fd/%1").arg(fd)) + '/' : QString();
    if (path.endsWith(folder) && namesIn(path).isEmpty())
        ++(QThread::currentThread() == QCoreApplication::instance()->thread() ? syncs.byPage : syncs.byOthers);
    return int(::syscall(SYS_fsync, fd));
}

/// The files of drafts, and the disk under them.
class DraftFilesTest : public DraftFixture
{
    Q_OBJECT

private Q_SLOTS:
    /// What was saved or discarded is not offered again after a power cut; the page does not wait for the disk.
    void aRemovalSurvivesAPowerCut()
    {
        {
            Run run;
            run.report.setUp("a", 3);
            run.measure(number(1));
            QVERIFY(run.draft.flush());
            syncs.isWatched = true;
            QVERIFY(run.report.save());
            QTRY_COMPARE(syncs.byOthers.load(), 1);
            syncs.isWatched = false;
            run.measure(number(2));
            QVERIFY(run.draft.flush());
        }
        Run run;
        QVERIFY(run.draft.isAvailable());
        syncs.isWatched = true;
        run.draft.discard();
        QTRY_COMPARE(syncs.byOthers.load(), 2);
        syncs.isWatched = false;
        QCOMPARE(syncs.byPage.load(), 0);
    }

    void damagedDraftsAreSetAside_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<bool>("isOffered");
        QTest::addColumn<QString>("end");
        const uiutils::DraftContents contents {{{"number", 1}}, {}, {}};
        QString problem;
        const QByteArray good = *uiutils::draftFile({QDateTime::currentDateTime(), "t"}, contents, &problem);
        const auto body = [&](const QByteArray& text, int level = -1) {
            const QByteArray packed = qCompress(text, level).mid(4);
            return json("{'version':1,'size':" + QByteArray::number(packed.size()) + ",'savedAt':'2026-01-31T14:00:00.000Z'}\n") + packed;
        };
        // As it stands in the stream, and still a number.
        const QByteArray flipped = body("{\"number\":1}\n{}\n{}\n", 0).replace("number\":1", "number\":2");
        QTest::newRow("empty") << QByteArray() << false << ".damaged";
        QTest::newRow("half written") << good.left(good.size() / 2) << false << ".damaged";
        QTest::newRow("no header") << QByteArray(100'000, 'x') << false << ".damaged";
        QTest::newRow("longer") << good + 'x' << false << ".damaged";
        QTest::newRow("another version") << QByteArray(good).replace("\"version\":1", "\"version\":2") << false << ".draft";
        QTest::newRow("another number") << flipped << true << ".damaged";
        QTest::newRow("two lines") << body("{}\n{}\n") << true << ".damaged";
        QTest::newRow("no objects") << body("[]\n[]\n[]\n") << true << ".damaged";
        QTest::newRow("much in little") << body(QByteArray(200'000'000, ' ')) << true << ".damaged";
        QTest::newRow("nested") << body("{\"a\":" + QByteArray(100'000, '[') + "}\n{}\n{}\n") << true << ".damaged";
        QTest::newRow("many lists") << body("{\"a\":[" + QByteArray("[],").repeated(800'000) + "1]}\n{}\n{}\n") << true << ".damaged";
        QTest::newRow("open text") << body("{\"a\":\"\\\n{}\n{}\n") << true << ".damaged";
    }
    void damagedDraftsAreSetAside()
    {
        QFETCH(QByteArray, file);
        QFETCH(bool, isOffered);
        QFETCH(QString, end);
        writeFile(onDisk(folder + "20260131-140000-000.draft"), file);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(end == ".draft" ? "made by another version" : "is damaged; it is now"));
        if (isOffered)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be given back"));
        {
            Run run;
            QCOMPARE(run.draft.isAvailable(), isOffered);
            run.draft.setData(number(7));
            QVERIFY(!run.draft.restore());
            QCOMPARE(run.draft.data(), number(7));
            QVERIFY(!run.draft.isAvailable() && run.draft.flush());
            QCOMPARE(files().size(), 2);
            QCOMPARE(files().filter(QRegularExpression("^20260131.*" + QRegularExpression::escape(end) + '$')).size(), 1);
            QVERIFY(QFileInfo(onDisk(folder + files().first())).size() == file.size());
            run.draft.forget();
        }
        if (end == ".draft")
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("made by another version"));
        QVERIFY(!Run().draft.isAvailable());
    }

    void whatCouldNotBeReadIsNotWritten()
    {
        const auto limited = [](const QVariant& value) {
            Run run;
            run.measure({{"value", value}});
            const QString problem = run.draft.flush() ? QString() : run.draft.problem();
            run.draft.forget();
            return problem;
        };
        QVariant nested = 1;
        for (int i = 0; i < 998; ++i)
            nested = QVariantList {nested};
        QCOMPARE(limited(nested), QString());
        QCOMPARE(limited(QVariantList {nested, QString("]")}), QString());
        const QString problem("The results are too large to be kept before they are saved");
        QCOMPARE(limited(QVariantList {QVariantList {nested}}), problem);
        QCOMPARE(limited(QString(70'000'000, 'x')), problem);
        QCOMPARE(files(), QStringList());
    }

    void aFullDiskIsSaidAndTriedAgain()
    {
        Run run;
        run.measure(number(1));
        QVERIFY(run.draft.flush());
        const QByteArray before = contentsOf(onlyFile());
        {
            const FileSizeLimit full(10);
            run.measure(number(2));
            QTRY_VERIFY(!run.draft.problem().isEmpty());
            QVERIFY(run.draft.isPending() && !run.draft.flush());
            QCOMPARE(contentsOf(onlyFile()), before);
        }
        QTRY_VERIFY(!run.draft.isPending());
        QCOMPARE(run.draft.problem(), QString());
        QVERIFY(contentsOf(onlyFile()) != before);
        QCOMPARE(run.log.take().count("problemChanged"), 2);
    }

    void changesThatFollowEachOtherAreWrittenOnce()
    {
        Run run;
        run.draft.setInterval(3600'000);
        run.measure(number(0));
        QTRY_VERIFY(!run.draft.isPending());
        const QByteArray first = contentsOf(onlyFile());
        for (int i = 1; i <= 1000; ++i) {
            run.measure(number(i));
            QCoreApplication::processEvents();
        }
        QVERIFY(run.draft.isPending());
        QCOMPARE(contentsOf(onlyFile()), first);
        Q_EMIT QCoreApplication::instance()->aboutToQuit({});
        QVERIFY(!run.draft.isPending() && contentsOf(onlyFile()) != first);
        QCOMPARE(run.log.take().count("pendingChanged"), 4);
    }

    void anotherOwnerFollowsTheFirst()
    {
        auto first = std::make_unique<Run>();
        first->measure(number(1));
        QVERIFY(first->draft.flush());
        Run second;
        QVERIFY(!second.draft.isAvailable());
        first.reset();
        QTRY_VERIFY(second.draft.isAvailable());
        QCOMPARE(second.log.take(), QStringList("availableChanged"));
    }

    /// A draft that was given back is written under its former name. What was removed is not offered any more.
    void theOldestIsTheOneThatWasWrittenFirst()
    {
        const auto write = [&](const QString& name, const QDateTime& time, int value) {
            QString problem;
            const QString path = onDisk(folder + name);
            writeFile(path, *uiutils::draftFile({time, name}, {QJsonObject::fromVariantMap(number(value)), {}, {}}, &problem));
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(time, QFile::FileModificationTime));
        };
        const QDateTime now = QDateTime::currentDateTime();
        for (int i = 1; i <= 19; ++i)
            write(QString("202601%1.draft").arg(i, 2, 10, QChar('0')), now.addSecs(-3600 + i), i);
        write("20250101.draft", now.addSecs(-60), 20);
        Run run;
        QCOMPARE(run.draft.availableCount(), 20);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("too many drafts.*20260101"));
        run.draft.setData(number(21));
        QVERIFY(run.draft.flush());
        QCOMPARE(run.draft.availableCount(), 19);
        QVERIFY(run.draft.restore());
        QCOMPARE(run.draft.data(), number(20));
        run.draft.forget();
        // Somebody else has removed it.
        QVERIFY(QFile::remove(onDisk(folder + "20260119.draft")));
        run.draft.discard();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be given back"));
        QVERIFY(!run.draft.restore());
        QVERIFY(run.draft.restore());
        QCOMPARE(run.draft.data(), number(18));
    }

    void aRemovedFolderIsMadeAgain()
    {
        Run run;
        run.measure(number(1));
        QVERIFY(run.draft.flush());
        const QFile::Permissions mine = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
        QCOMPARE(QFileInfo(onDisk(folder)).permissions() & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser), mine);
        QVERIFY(QDir(onDisk("/cust/private/drafts")).removeRecursively());
        run.measure(number(2));
        QVERIFY(run.draft.flush() && files().size() == 1);
        // Somebody has put an earlier one in its place, with a draft that was not answered there.
        const QString path = onlyFile();
        const QByteArray earlier = contentsOf(path);
        QVERIFY(QDir(onDisk("/cust/private/drafts")).removeRecursively());
        writeFile(path, earlier);
        run.measure(number(3));
        QVERIFY(run.draft.flush() && run.draft.restore());
        QCOMPARE(run.draft.data(), number(2));
        QCOMPARE(files().size(), 2);
        // Another folder of the name may have another owner.
        QVERIFY(QDir(onDisk("/cust/private/drafts")).removeRecursively());
        Run other;
        other.measure(number(3));
        QVERIFY(other.draft.flush());
        run.measure(number(4));
        QVERIFY(!run.draft.flush());
        QCOMPARE(files().size(), 1);
        run.draft.forget();
        QCOMPARE(files().size(), 1);
    }

    /// The user is told of another owner only if there is one.
    void aFolderThatCannotBeOpened()
    {
        Run().measure(number(1));
        Run run("else");
        struct rlimit files = {};
        QCOMPARE(::getrlimit(RLIMIT_NOFILE, &files), 0);
        const struct rlimit none = {3, files.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &none), 0);
        run.draft.setDraftId(id);
        run.draft.setData(number(2));
        const bool isSafe = run.draft.flush();
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &files), 0);
        QVERIFY(!isSafe);
        QCOMPARE(run.draft.problem(), QString("There is no folder to keep the results in until they are saved"));
        QVERIFY(run.draft.flush() && run.draft.problem().isEmpty());
    }

    void aSlowDiskIsSpared()
    {
        QCOMPARE(uiutils::pauseAfter(2000, 50), 2000);
        QCOMPARE(uiutils::pauseAfter(2000, 300), 6000);
        // It was stuck once.
        QCOMPARE(uiutils::pauseAfter(2000, 30'000), 60'000);
        QCOMPARE(uiutils::pauseAfter(3600'000, 30'000), 3600'000);
    }

    void theOldestOfTooManyIsRemoved()
    {
        for (int i = 0; i < 30; ++i) {
            if (i >= 20)
                QTest::ignoreMessage(QtWarningMsg, QRegularExpression("too many drafts"));
            Run().measure(number(i));
        }
        Run run;
        QCOMPARE(run.draft.availableCount(), 20);
        QVERIFY(run.draft.restore());
        QCOMPARE(run.draft.data(), number(29));
    }

    void aKilledProcessLeavesTheOldOrTheNewDraft()
    {
        int known = 0;
        for (int round = 0; round < 20; ++round) {
            QProcess process;
            process.start(QCoreApplication::applicationFilePath(), {"--keep"});
            // The moment is another one in each round: after so many reports, and some turns of this loop.
            int safe = 0;
            for (int lines = 0; lines <= round / 2;) {
                QVERIFY(process.waitForReadyRead(60'000));
                while (process.canReadLine()) {
                    safe = process.readLine().toInt();
                    ++lines;
                }
            }
            for (int i = 0; i < round * 997; ++i)
                process.bytesAvailable();
            process.kill();
            QVERIFY(process.waitForFinished());
            Run run;
            QVERIFY(run.draft.isAvailable() && run.draft.restore());
            known = run.draft.data().value("number").toInt();
            QVERIFY(known >= safe);
            QCOMPARE(run.event(), QString(50'000, QChar('a' + known % 26)) + QString::number(known));
            QCOMPARE(run.draft.availableCount(), 0);
            run.draft.forget();
            QCOMPARE(files().filter(".draft"), QStringList());
        }
    }
};

int main(int argc, char** argv)
{
    const QGuiApplication gui(argc, argv);
    if (argc == 2 && QByteArray(argv[1]) == "--keep")
        return keepNumbers();
    DraftFilesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_draftfiles.moc"
