#include "reportfixture.h"

/// Controllers that go, and saves that begin, at the moments when that hurts.
class ReportLifetimeTest : public ReportFixture
{
    Q_OBJECT

private Q_SLOTS:
    void slotsMayDeleteTheController_data()
    {
        QTest::addColumn<Setter>("prepare");
        QTest::addColumn<QStringList>("files");
        const auto onSignal = [](void (Report::*signal)()) {
            return [signal](Report& r) { connect(&r, signal, &r, [&r] { delete &r; }); };
        };
        const auto onNotification = [](void (KIVNotificationModelManager::*signal)()) {
            return [signal](Report& r) {
                // The dialog goes with the controller, which the manager tells, too.
                connect(manager(), signal, &r, [&r, isFirst = true]() mutable {
                    if (std::exchange(isFirst, false))
                        delete &r;
                });
            };
        };
        const auto add = [](const char* name, const Setter& prepare, const QStringList& files) {
            QTest::newRow(name) << prepare << files;
        };
        const auto dialog = onNotification(&KIVNotificationModelManager::currentDialogChanged);
        const auto tray = onNotification(&KIVNotificationModelManager::countChanged);
        const auto blocked = [](Report& r) {
            QVERIFY(writeFile(QFile::decodeName(qgetenv("UIUTILS_ROOT")) + "/cust/public/reports/f", ""));
            r.setFolder("f");
        };
        add("job info", onSignal(&Report::includeJobInfoChanged), {});
        add("last XML", onSignal(&Report::lastSavedXMLChanged), {"a.xml"});
        add("files", onSignal(&Report::reportFilesChanged), {"a.xml"});
        add("location", onSignal(&Report::saveLocationChanged), {"a.xml"});
        add("tray", tray, {"a.xml"});
        add(
                "generated", [](Report& r) { connect(&r, &Report::reportGenerated, &r, [&r] { delete &r; }); },
                {"a.xml", "a.html"});
        const auto failing = [=](const Setter& watch) {
            return [=](Report& r) {
                blocked(r);
                watch(r);
            };
        };
        add("error in the tray", failing(tray), {"f"});
        add("error in a dialog", failing(dialog), {"f"});
        add(
                "question",
                [=](Report& r) {
                    QVERIFY(r.writeXmlReport(r.getSaveFilePath("a", ".xml")));
                    r.addReportToNoSyncList("/cust/public/reports/a.xml");
                    dialog(r);
                },
                {"a.xml"});
    }
    void slotsMayDeleteTheController()
    {
        QFETCH(Setter, prepare);
        const QPointer<Controller> report(new Controller);
        report->setUp("a", 5);
        for (int format : {0, 3, 4})
            report->setFormatApplicable(format, false);
        auto* jobInfo = new BoolUiData;
        jobInfo->setAttributes({{"name", "includeJobInfo"}, {"type", "bool"}});
        jobInfo->setValue(true);
        report->addSetting(jobInfo);
        prepare(*report);
        report->save();
        QVERIFY(!report);
        QStringList found = names("/cust/public/reports");
        std::sort(found.begin(), found.end(), std::greater<>());
        QTEST(found, "files");
        // What is written without the controller stays from the cloud without it.
        const QByteArray list = contentsOf(onDisk("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt"));
        for (const QString& file : qAsConst(found))
            QVERIFY2(file == "f" || list.contains("/" + file.toUtf8() + "\n"), qPrintable(file));
    }
    void generatorsMayDeleteTheController()
    {
        for (const int format : {0, 3}) {
            const QPointer<Controller> report(new Controller);
            report->setUp("a", format);
            report->whileMaking = [&report] { delete report; };
            QVERIFY(!report->save());
            QVERIFY(!report);
        }
    }
    void refusalsMayDeleteTheController()
    {
        const QPointer<Report> report(new Report);
        QVERIFY(basemgr()->setValue(activeItem, false));
        QVERIFY(!report->writeToJobManager());
        // The dialog of the first makes room for the second.
        connect(manager(), &KIVNotificationModelManager::currentDialogChanged, report, [&report, isFirst = true]() mutable {
            if (std::exchange(isFirst, false))
                delete report;
        });
        QVERIFY(!report->writeToJobManager());
        QVERIFY(!report);
        QVERIFY(!manager()->currentDialog());
    }
    void notifiersMayDeleteTheController()
    {
        writeTemplate("a.json", "");
        const QVector<Setter> changes{[](Report& r) { r.setTemplatePath("/cust/a.json"); },
                [](Report& r) { r.setFolder("x"); }, [](Report& r) { r.setTag("x"); },
                [](Report& r) { r.setBaseDirectory("/x/"); }};
        for (const Setter& change : changes) {
            const QPointer<Report> report(new Report);
            for (const auto signal : {&Report::reportFilesChanged, &Report::tagChanged})
                connect(report, signal, report, [&report] { delete report; });
            change(*report);
            QVERIFY(!report);
        }
        const QPointer<Report> report(new Report);
        connect(report, &Report::canWriteToJobManagerChanged, report, [&report] { delete report; });
        QVERIFY(basemgr()->setValue(activeItem, false));
        QTRY_VERIFY(!report);
    }
    void storedValuesMayDeleteTheController()
    {
        QVERIFY(writeFile(onDisk("/cust/private/lastconfigs/reportSettings/.json"),
                json("{'reportFormat': 1, 'reportName': 'a', 'reportSync_SS': true}")));
        const QPointer<Report> report(new Report);
        connect(report->getSetting("reportFormat"), &KivData::valueChanged, report, [&report] { delete report; });
        report->slotCreateSettings();
        QVERIFY(!report);
    }
    void answersMayDeleteTheirAsker()
    {
        const QPointer<Controller> first(new Controller);
        Controller second;
        QVERIFY(writeFile(onDisk("/cust/public/reports/a.txt"), ""));
        for (Controller* report : {first.data(), &second}) {
            report->setUp("a", 3);
            QVERIFY(!report->save());
        }
        QSignalSpy accepted(&second, &Report::reportOverwriteAccepted);
        connect(first, &Report::reportOverwriteAccepted, first, [&first] { delete first; });
        // The second hears this answer when the first has gone.
        manager()->accept();
        QVERIFY(!first);
        QCOMPARE(accepted.count(), 0);
        manager()->accept();
        QCOMPARE(accepted.count(), 1);
    }

    void dyingControllersSaveNothing()
    {
        QVERIFY(writeFile(onDisk("/cust/public/reports/a.txt"), "kept"));
        auto report = std::make_unique<Controller>();
        report->setUp("a", 3);
        QVERIFY(!report->save());
        QVector<bool> saved;
        Report* dying = report.get();
        connect(manager(), &KIVNotificationModelManager::currentDialogChanged, dying,
                [&saved, dying] { saved << dying->save(true); });
        report.reset();
        QCOMPARE(saved, QVector<bool>{false});
        QCOMPARE(contentsOf(onDisk("/cust/public/reports/a.txt")), QByteArray("kept"));
    }
    void dyingControllersAnswer()
    {
        QVERIFY(writeFile(onDisk("/cust/public/reports/f"), ""));
        auto report = std::make_unique<Controller>();
        report->setUp("a", 3);
        report->setFolder("f");
        QVERIFY(!report->save());
        QVERIFY(basemgr()->setValue(activeItem, false));
        QVERIFY(!report->writeToJobManager());
        QCOMPARE(manager()->waitingDialogs(), 1);
        QStringList seen;
        Report* dying = report.get();
        connect(manager(), &KIVNotificationModelManager::currentDialogChanged, dying,
                [&seen, dying] { seen << dying->getSaveLocation() << dying->getTitle() << QString::number(dying->getProgress()); });
        report.reset();
        QVERIFY(!manager()->currentDialog());
        QVERIFY(seen.contains("Internal:/reports/f/"));
    }

    void savesDoNotNest()
    {
        Controller report;
        report.setUp("a", 3);
        QVector<bool> nested;
        connect(&report, &Report::reportFilesChanged, &report, [&] { nested << report.save(true); });
        QVERIFY(report.save());
        QCOMPARE(nested, QVector<bool>{false});
        report.disconnect(&report);
        // Whoever answers at once is heard, and one save may follow another.
        connect(&report, &Report::reportOverwriteAccepted, &report, [&] { nested << report.save(true); });
        const auto watch = connect(manager(), &KIVNotificationModelManager::currentDialogChanged, &report, [] {
            if (manager()->currentDialog())
                manager()->accept();
        });
        QVERIFY(!report.save());
        QCOMPARE(nested, QVector<bool>({false, true}));
        disconnect(watch);
        connect(&report, &Report::reportGenerated, &report, [&] {
            if (report.getSetting("reportName")->getValue() != "b") {
                report.getSetting("reportName")->setValue("b");
                nested << report.save();
            }
        });
        QVERIFY(report.save(true));
        QCOMPARE(nested, QVector<bool>({false, true, true}));
        QCOMPARE(names("/cust/public/reports"), QStringList({"a.txt", "b.txt"}));
    }
};

QTEST_MAIN(ReportLifetimeTest)

#include "tst_reportlifetime.moc"
