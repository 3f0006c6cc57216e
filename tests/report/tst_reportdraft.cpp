#include "reportfixture.h"

#include "report/drafts/draftfile_p.h"
#include "report/drafts/draftwriter_p.h"
#include "report/drafts/reportdraft.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <cmath>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

using uiutils::ReportDraft;

namespace {

const QString id("otdr");
const QString folder("/cust/private/drafts/tst_reportdraft/otdr/");

/// A page with a draft, as it is in one run of the program.
struct Run
{
    Controller report;
    ReportDraft draft;
    SignalLog log {&draft};

    explicit Run(const QString& draftId = id)
    {
        draft.setInterval(0);
        draft.setReport(&report);
        draft.setDraftId(draftId);
        log.take();
    }
    void measure(const QVariantMap& data, const QString& event = QString())
    {
        report.document().beginReport("otdr");
        report.document().setKey("event", event);
        report.document().endReport();
        draft.setData(data);
    }
    QString event() { return report.document().object().value("event").toString(); }
};

/// How often the folder of drafts was synced while it was watched and empty: by the page's own thread, and by others.
struct
{
    std::atomic_bool isWatched {false};
    std::atomic_int byPage {0}, byOthers {0};
} syncs;

QVariantMap number(int value)
{
    return {{"number", value}};
}

/// Keeps numbers until it is killed, and prints each that is safe.
int keepNumbers()
{
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

/// What was measured and not saved is offered again.
class ReportDraftTest : public ReportFixture
{
    Q_OBJECT

    QStringList files() const { return names(folder); }
    QString onlyFile() const { return files().size() == 1 ? onDisk(folder + files().first()) : QString(); }

private Q_SLOTS:
    void whatWasMeasuredComesBack()
    {
        const QVariantMap data {{"text", "ü\n\"{"}, {"list", QVariantList {1, 2.5, true, QVariantList {"x"}}}, {"big", 9007199254740993LL}};
        {
            Run run;
            QVERIFY(!run.draft.isAvailable() && !run.draft.restore());
            run.report.setUp("Fiber 7", 1);
            run.report.setTestTime("14:03");
            run.report.setTitle("OTDR");
            run.report.setScreenshotList({"/cust/public/a.png"});
            QCOMPARE(files(), QStringList());
            run.measure(data, "splice");
            QVERIFY(run.draft.isPending());
            QTRY_VERIFY(!run.draft.isPending());
            QCOMPARE(run.log.take(), QStringList({"pendingChanged", "dataChanged", "pendingChanged"}));
            // Others do not get what somebody is working on.
            Run other;
            QVERIFY(!other.draft.isAvailable());
            other.draft.setData(number(1));
            QVERIFY(!other.draft.flush());
            QCOMPARE(other.draft.problem(), QString("Another page or program keeps results of this kind"));
            QVERIFY(!Run("else").draft.isAvailable());
            other.draft.forget();
        }
        Run run;
        QVERIFY(run.draft.isAvailable());
        QCOMPARE(run.draft.availableTitle(), QString("Fiber 7"));
        QVERIFY(qAbs(run.draft.savedAt().secsTo(QDateTime::currentDateTime())) < 60);
        // A handler that keeps what is half given back.
        connect(&run.report, &Report::titleChanged, &run.draft, &ReportDraft::keep);
        connect(&run.draft, &ReportDraft::dataChanged, &run.draft, [&] { QCOMPARE(run.event(), QString("splice")); });
        QVERIFY(run.draft.restore());
        QCOMPARE(run.log.take(), QStringList({"dataChanged", "availableChanged", "pendingChanged", "restored"}));
        QCOMPARE(QJsonObject::fromVariantMap(run.draft.data()), QJsonObject::fromVariantMap(data));
        QCOMPARE(run.report.getSetting("reportName")->getValue().toString(), QString("Fiber 7"));
        QCOMPARE(run.report.getFormat(), 1);
        QCOMPARE(run.report.getTestTime() + run.report.getTitle() + run.report.getScreenshotList().join(' '), QString("14:03OTDR/cust/public/a.png"));
        QVERIFY(run.draft.flush() && !run.draft.isAvailable());
        uiutils::DraftContents kept;
        QVERIFY(uiutils::readDraft(onlyFile(), &kept) == uiutils::DraftState::Good);
        QCOMPARE(kept.report.value("testTime").toString() + kept.document.value("event").toString(), QString("14:03splice"));

        // Only a save that succeeds is the end of it.
        run.report.setUp("a/b", 1);
        QVERIFY(!run.report.save());
        QCOMPARE(files().size(), 1);
        run.report.setUp("Fiber 7", 1);
        QVERIFY(run.report.save());
        QCOMPARE(files(), QStringList());
        QVERIFY(run.draft.flush() && files().isEmpty());
    }

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

    /// A page goes on measuring while its report is written.
    void whatIsMeasuredDuringASaveIsKept()
    {
        Run run;
        run.report.setUp("a", 3);
        run.measure(number(1), "one");
        QVERIFY(run.draft.flush());
        run.report.meanwhile = [&] { run.draft.keep(); };
        QVERIFY(run.report.save());
        QCOMPARE(files(), QStringList());
        run.measure(number(2), "two");
        run.report.meanwhile = [&] { run.measure(number(3), "two"); };
        QVERIFY(run.report.save(true) && run.draft.flush());
        QCOMPARE(files().size(), 1);
        run.report.meanwhile = [&] {
            run.measure(number(3), "three");
            run.draft.keep();
        };
        QVERIFY(run.report.save(true) && run.draft.flush());
        QCOMPARE(files().size(), 1);
        run.report.meanwhile = nullptr;
        QVERIFY(run.report.save(true));
        QCOMPARE(files(), QStringList());
    }

    void deletedObjectsLeaveWhatTheyHad()
    {
        {
            auto report = std::make_unique<Controller>("Fiber 7", 1);
            ReportDraft draft;
            draft.setDraftId(id);
            draft.setReport(report.get());
            report->document().beginReport("otdr");
            report->document().endReport();
            draft.keep();
            connect(report.get(), &QObject::destroyed, &draft, &ReportDraft::keep);
            report.reset();
            draft.setReport(nullptr);
            draft.setData(number(2));
        }
        {
            auto report = std::make_unique<Controller>();
            ReportDraft draft;
            draft.setReport(report.get());
            draft.setDraftId(id);
            QCOMPARE(draft.availableTitle(), QString("Fiber 7"));
            QVERIFY(draft.restore());
            QCOMPARE(draft.data(), number(2));
            // What was given back counts as kept.
            report.reset();
            draft.setData(number(3));
        }
        {
            Run run;
            QCOMPARE(run.draft.availableTitle(), QString("Fiber 7"));
            QVERIFY(run.draft.restore());
            QCOMPARE(run.report.document().object().value("tag").toString(), QString("otdr"));
            QCOMPARE(run.draft.data(), number(3));
            run.draft.setReport(nullptr);
            auto document = std::make_unique<ReportTemplate>();
            run.draft.setDocument(document.get());
            document->setObject({{"tag", "own"}});
            run.draft.keep();
            document.reset();
            run.draft.setData(number(4));
        }
        // A draft of a document alone has nothing for the controller.
        Run run;
        run.report.setTitle("mine");
        QVERIFY(run.draft.restore());
        QCOMPARE(run.report.document().object().value("tag").toString() + run.report.getTitle(), QString("ownmine"));
    }

    /// The results of two tests must never be in one report.
    void aDraftWithoutDocumentGivesNone()
    {
        {
            ReportDraft draft;
            draft.setDraftId(id);
            draft.setData(number(1));
        }
        Run run;
        run.measure(number(2), "two");
        QVERIFY(run.draft.restore());
        QCOMPARE(run.event(), QString());
    }

    /// A page that gives back whatever is offered, also what was just replaced.
    void aSlotGivesADraftBackInTheMiddleOfAWrite()
    {
        for (const bool isFlushed : {false, true}) {
            auto first = std::make_unique<Run>();
            first->measure(number(1));
            QVERIFY(first->draft.flush());
            {
                Run second;
                // Later than the write of what was kept.
                second.draft.setInterval(3600'000);
                second.draft.setData(number(2));
                connect(&second.draft, &ReportDraft::availableChanged, &second.draft, &ReportDraft::restore);
                first.reset();
                if (isFlushed)
                    second.draft.flush();
                QTRY_COMPARE(second.draft.data(), number(1));
            }
            Run run;
            QCOMPARE(run.draft.availableCount(), 2);
            QSet<int> numbers;
            for (int i = 0; i < 2; ++i) {
                QVERIFY(run.draft.restore());
                numbers += run.draft.data().value("number").toInt();
                run.draft.forget();
            }
            QCOMPARE(numbers, QSet<int>({1, 2}));
        }
    }

    void aSlotForgetsInTheMiddleOfAWrite()
    {
        for (const bool isFlushed : {false, true}) {
            auto first = std::make_unique<Run>();
            first->measure(number(1));
            QVERIFY(first->draft.flush());
            Run second;
            second.draft.setData(number(2));
            connect(&second.draft, &ReportDraft::availableChanged, &second.draft, &ReportDraft::forget);
            first.reset();
            if (isFlushed)
                second.draft.flush();
            QTRY_VERIFY(!second.draft.isPending() && second.draft.isAvailable());
            QCOMPARE(files().size(), 1);
            second.draft.discard();
        }
    }

    void unansweredDraftsStay()
    {
        for (int i = 1; i <= 3; ++i)
            Run().measure(number(i));
        Run run;
        QCOMPARE(run.draft.availableCount(), 3);
        run.measure(number(4));
        QVERIFY(run.draft.flush());
        QCOMPARE(files().size(), 4);
        // The newest one is given back, and what it replaces is offered.
        QVERIFY(run.draft.restore());
        QCOMPARE(run.draft.data(), number(3));
        QCOMPARE(run.draft.availableCount(), 3);
        QVERIFY(run.draft.restore());
        QCOMPARE(run.draft.data(), number(4));
        run.draft.discard();
        QCOMPARE(run.log.take().count("availableChanged"), 3);
        run.draft.forget();
        QCOMPARE(run.draft.data(), number(4));
        QVERIFY(run.draft.restore());
        QCOMPARE(run.draft.data(), number(2));
        run.draft.discard();
        QCOMPARE(files().size(), 1);
    }

    void aRestoreThatCannotKeepWhatItReplacesDoesNothing()
    {
        Run().measure(number(1));
        Run run;
        run.measure(number(2));
        const FileSizeLimit full(10);
        QVERIFY(!run.draft.restore());
        QCOMPARE(run.draft.data(), number(2));
        QVERIFY(run.draft.isAvailable());
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

    /// What was not written for the former name is not left as pending for the new one.
    void anotherNameBeginsAnew()
    {
        const FileSizeLimit full(10);
        Run run;
        run.measure(number(1));
        QVERIFY(!run.draft.flush() && run.draft.isPending());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("The draft of otdr is lost: "));
        run.log.take();
        run.draft.setDraftId("else");
        QVERIFY(!run.draft.isPending() && run.draft.problem().isEmpty());
        QCOMPARE(run.log.take(), QStringList({"problemChanged", "pendingChanged", "draftIdChanged"}));
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

    void valuesThatNobodyCouldEnterAreLeftOut()
    {
        const QJsonObject settings {{"reportName", "a/b"}, {"reportFormat", 4711}, {"reportSync_SS", "yes"}};
        QString problem;
        writeFile(onDisk(folder + "a.draft"), *uiutils::draftFile({QDateTime::currentDateTime(), {}}, {{}, {{"settings", settings}}, {}}, &problem));
        Run run;
        run.report.setUp("mine", 1);
        run.report.setTitle("mine");
        QVERIFY(run.draft.restore());
        QCOMPARE(run.report.getTitle(), QString("mine"));
        QCOMPARE(run.report.getSetting("reportName")->getValue().toString(), QString("mine"));
        QCOMPARE(run.report.getFormat(), 1);
        QCOMPARE(run.report.getSetting("reportSync_SS")->getValue().toBool(), false);
    }

    void slotsMayDeleteTheDraft()
    {
        const auto dies = [](auto signal, const auto& act) {
            auto* draft = new ReportDraft;
            const QPointer<ReportDraft> alive(draft);
            draft->setInterval(0);
            draft->setDraftId(id);
            QObject::connect(draft, signal, draft, [draft] { delete draft; });
            act(draft);
            QTRY_VERIFY(!alive);
        };
        const auto give = [](ReportDraft* draft) { draft->restore(); };
        const auto set = [](ReportDraft* draft) { draft->setData(number(draft->data().value("number").toInt() + 1)); };
        dies(&ReportDraft::pendingChanged, set);
        dies(&ReportDraft::dataChanged, set);
        dies(&ReportDraft::dataChanged, give);
        dies(&ReportDraft::restored, give);
        dies(&ReportDraft::availableChanged, give);
        dies(&ReportDraft::availableChanged, [](ReportDraft* draft) { draft->discard(); });
        const FileSizeLimit full(10);
        dies(&ReportDraft::problemChanged, set);
    }

    void pagesGiveTheirOwnObjects()
    {
        const auto page = [](QQmlEngine* engine) {
            QQmlComponent component(engine);
            component.setData("import UiUtils 1.0; ReportDraft { draftId: 'otdr'; interval: 0; data: ({ rows: [{ a: 1 }, [2, 'x']], none: NaN }) }", QUrl());
            return std::unique_ptr<ReportDraft>(qobject_cast<ReportDraft*>(component.create()));
        };
        qmlRegisterType<ReportDraft>("UiUtils", 1, 0, "ReportDraft");
        QQmlEngine engine;
        auto draft = page(&engine);
        QVERIFY(draft && draft->flush());
        QCOMPARE(files(), QStringList());
        draft->keep();
        QVERIFY(draft->flush());
        draft.reset();
        draft = page(&engine);
        draft->setData({});
        QVERIFY(draft->restore());
        const QVariantMap expected {{"rows", QVariantList {QVariantMap {{"a", 1}}, QVariantList {2, "x"}}}, {"none", QVariant::fromValue(nullptr)}};
        QCOMPARE(draft->data(), expected);
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
    QGuiApplication application(argc, argv);
    application.setApplicationName("tst_reportdraft");
    if (argc == 2 && QByteArray(argv[1]) == "--keep")
        return keepNumbers();
    ReportDraftTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_reportdraft.moc"
