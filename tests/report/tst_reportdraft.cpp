#include "draftfixture.h"

#include "report/drafts/draftfile_p.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <cmath>

/// What was measured and not saved is offered again.
class ReportDraftTest : public DraftFixture
{
    Q_OBJECT

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
};

QTEST_MAIN(ReportDraftTest)
#include "tst_reportdraft.moc"
