#include "reportfixture.h"

using Deed = std::function<void(Controller*)>;
Q_DECLARE_METATYPE(Deed)

/// Controllers that are deleted, and saves that begin, at the worst moments.
class ReportLifetimeTest : public ReportFixture
{
    Q_OBJECT

private Q_SLOTS:
    void theControllerMayGo_data()
    {
        addColumns<Deed, QStringList>();
        const auto add = [](const char* name, const Deed& deed, const QStringList& files = {}) {
            QTest::newRow(name) << deed << files;
        };
        const auto goOn = [](void (Report::*signal)()) {
            return [signal](Controller* r) { connect(r, signal, r, [r] { delete r; }); };
        };
        const auto goOnNotification = [](void (KIVNotificationModelManager::*signal)()) {
            return [signal](Controller* r) {
                // The dialog is removed with the controller, which is reported to the manager too.
                connect(manager(), signal, r, [r, isFirst = true]() mutable {
                    if (std::exchange(isFirst, false))
                        delete r;
                });
            };
        };
        const auto within = [](const Deed& prepare, const Deed& act) {
            return [=](Controller* r) {
                prepare(r);
                act(r);
            };
        };
        const auto goOnDialog = goOnNotification(&KIVNotificationModelManager::currentDialogChanged);
        const auto goOnTray = goOnNotification(&KIVNotificationModelManager::countChanged);
        const Deed save = [](Controller* r) { r->save(); };
        const Deed fail = [=](Controller* r) {
            writeFile(onDisk("/cust/public/reports/f"), "");
            r->setFolder("f");
            r->save();
        };
        const auto goMeanwhile = [=](int format) {
            return [=](Controller* r) {
                r->getSetting("reportFormat")->setValue(format);
                r->meanwhile = [r] { delete r; };
                r->save();
            };
        };
        add("job info", within(goOn(&Report::includeJobInfoChanged), save));
        add("last XML", within(goOn(&Report::lastSavedXMLChanged), save), {"a.xml"});
        add("files", within(goOn(&Report::reportFilesChanged), save), {"a.xml"});
        add("location", within(goOn(&Report::saveLocationChanged), save), {"a.xml"});
        add("tray", within(goOnTray, save), {"a.xml"});
        const Deed watch = [](Controller* r) { connect(r, &Report::reportGenerated, r, [r] { delete r; }); };
        add("generated", within(watch, save), {"a.xml", "a.html"});
        add("error in the tray", [=](Controller* r) { goOnTray(r), fail(r); }, {"f"});
        add("error in a dialog", [=](Controller* r) { goOnDialog(r), fail(r); }, {"f"});
        add("question", [=](Controller* r) {
            QVERIFY(r->writeXmlReport(r->getSaveFilePath("a", ".xml"), false));
            r->addReportToNoSyncList("/cust/public/reports/a.xml");
            goOnDialog(r);
            r->save();
        }, {"a.xml"});
        add("pages are made", goMeanwhile(0));
        add("text is made", goMeanwhile(3));
        add("succeeded", goMeanwhile(1), {"a.xml"});
        const Deed refuse = [](Controller* r) { r->writeToJobManager(); };
        add("refusal", [=](Controller* r) {
            QVERIFY(basemgr()->setValue(activeItem, false));
            // The dialog of the first makes way for the second.
            within(refuse, within(goOnDialog, refuse))(r);
        });
        for (const auto signal : {&Report::reportFilesChanged, &Report::folderChanged}) {
            add("template", within(goOn(signal), [this](Controller* r) {
                writeTemplate("a.json", "");
                r->setTemplatePath("/cust/a.json");
            }));
            add("tag", within(goOn(signal), [](Controller* r) { r->setTag("x"); }));
        }
        add("tag itself", within(goOn(&Report::tagChanged), [](Controller* r) { r->setTag("x"); }));
        add("base", within(goOn(&Report::reportFilesChanged), [](Controller* r) { r->setBaseDirectory("/x/"); }));
        add("service", within(goOn(&Report::canWriteToJobManagerChanged), [this](Controller* r) {
            const QPointer<Controller> report(r);
            QVERIFY(basemgr()->setValue(activeItem, false));
            QTRY_VERIFY(!report);
        }));
        const Deed load = [this](Controller* r) {
            writeFile(onDisk("/cust/private/lastconfigs/reportSettings/x.json"), json("{'includeJobInfo': false, 'reportFormat': 1}"));
            r->loadSettings();
            connect(r->getSetting("reportFormat"), &KivData::valueChanged, r, [r] { delete r; });
            r->setFolder("x");
        };
        add("stored values", load);
    }
    void theControllerMayGo()
    {
        const auto [deed, files] = currentRow<Deed, QStringList>();
        const QPointer<Controller> report(new Controller("a", 5));
        for (int format : {0, 3, 4})
            report->setFormatApplicable(format, false);
        auto* jobInfo = new BoolUiData;
        jobInfo->setAttributes({{"name", "includeJobInfo"}, {"type", "bool"}});
        jobInfo->setValue(true);
        report->addSetting(jobInfo);
        deed(report);
        QVERIFY(!report);
        QStringList found = names("/cust/public/reports");
        std::sort(found.begin(), found.end(), std::greater<>());
        QCOMPARE(found, files);
        // Files that are written after the controller was deleted are in the no-sync list too.
        for (const QString& file : qAsConst(found))
            QVERIFY2(file == "f" || contentsOf(listFile()).contains("/" + file.toUtf8() + "\n"), qPrintable(file));
    }
    void answersMayDeleteTheirAsker()
    {
        const QPointer<Controller> first(new Controller("a", 3));
        Controller second("a", 3);
        writeFile(onDisk("/cust/public/reports/a.txt"), "");
        QVERIFY(!first->save() && !second.save());
        QSignalSpy accepted(&second, &Report::reportOverwriteAccepted);
        connect(first, &Report::reportOverwriteAccepted, first, [&first] { delete first; });
        // The second receives this answer when the first has been deleted.
        manager()->accept();
        QVERIFY(!first);
        QCOMPARE(accepted.count(), 0);
        manager()->accept();
        QCOMPARE(accepted.count(), 1);
    }

    void dyingControllersAnswerAndSaveNothing()
    {
        writeFile(onDisk("/cust/public/reports/f/a.txt"), "kept");
        auto report = std::make_unique<Controller>("a", 3);
        report->setFolder("f");
        QVERIFY(!report->save());
        QVERIFY(basemgr()->setValue(activeItem, false));
        QVERIFY(!report->writeToJobManager());
        QCOMPARE(manager()->waitingDialogs(), 1);
        QStringList seen;
        Report* dying = report.get();
        connect(manager(), &KIVNotificationModelManager::currentDialogChanged, dying, [&seen, dying] {
            seen << dying->getSaveLocation() << QString::number(dying->getProgress()) << (dying->save(true) ? "saved" : "refused");
        });
        report.reset();
        QVERIFY(!manager()->currentDialog());
        QVERIFY(seen.contains("Internal:/reports/f/") && seen.contains("refused") && !seen.contains("saved"));
        QCOMPARE(contentsOf(onDisk("/cust/public/reports/f/a.txt")), QByteArray("kept"));
    }

    void savesDoNotNest()
    {
        Controller report("a", 3);
        QVector<bool> nested;
        connect(&report, &Report::reportFilesChanged, &report, [&] { nested << report.save(true); });
        QVERIFY(report.save());
        QCOMPARE(nested, QVector<bool>{false});
        report.disconnect(&report);
        // An answer that comes at once is received, and one save may follow another.
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
