#include "reportfixture.h"

/// What a controller does: saving, asking, telling, handing on.
class ReportSavingTest : public ReportFixture
{
    Q_OBJECT

private Q_SLOTS:
    void saves_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<QStringList>("files");
        QTest::newRow("pdf") << 0 << QStringList("a.pdf");
        QTest::newRow("text") << 3 << QStringList("a.txt");
        QTest::newRow("json") << 4 << QStringList("a.json");
        QTest::newRow("all that are offered") << 5 << QStringList({"a.pdf", "a.xml"});
        QTest::newRow("none") << 6 << QStringList();
        QTest::newRow("all, and none is offered") << 5 << QStringList();
    }
    void saves()
    {
        QFETCH(int, format);
        QFETCH(QStringList, files);
        Controller report;
        report.setFolder("f");
        report.setUp("a", format);
        for (int other = 0; other < 5; ++other)
            report.setFormatApplicable(other, format != 5 || (other < 2 && !files.isEmpty()));
        QSignalSpy generated(&report, &Report::reportGenerated);
        QCOMPARE(report.save(), !files.isEmpty());
        QCOMPARE(names("/cust/public/reports/f"), files);
        QCOMPARE(generated.count(), files.isEmpty() ? 0 : 1);
        QCOMPARE(manager()->count(), qMax(1, files.size()));
        QCOMPARE(manager()->currentDialog() != nullptr, files.isEmpty());
        if (!files.isEmpty())
            QCOMPARE(generated.at(0).at(0).toString(), format == 5 ? "a" : "/cust/public/reports/f/" + files.at(0));
        if (format == 3)
            QCOMPARE(contentsOf(onDisk("/cust/public/reports/f/a.txt")), QByteArray());
        if (format == 4)
            QCOMPARE(contentsOf(onDisk("/cust/public/reports/f/a.json")), QByteArray("{ }"));
    }

    void derivedControllersIntercept()
    {
        Controller report;
        report.setUp("", 1);
        Emissions emissions(report);
        QVERIFY(report.save());
        QCOMPARE(report.calls,
                QStringList({"started", "prepare", "writeXml", "writeText.xml", "written", "metadata XML", "succeeded"}));
        QCOMPARE(emissions.names,
                QStringList({"savingChanged", "lastSavedXMLChanged", "reportFilesChanged", "saveLocationChanged",
                        "progressChanged", "savingChanged", "reportGenerated"}));
        QCOMPARE(report.getLastSavedXML(), QString("/cust/public/reports/proposed.xml"));
        QCOMPARE(manager()->data(manager()->index(0), KIVNotificationModelManager::MsgRole).toString(),
                QString("Report proposed saved\nFolder: reports"));
        QCOMPARE(report.getOpenReportPath("proposed"), report.getLastSavedXML());
        QCOMPARE(report.getOpenReportPath("proposed.xml"), report.getLastSavedXML());
        QCOMPARE(report.getOpenReportPath("../reports/proposed"), QString());
        report.setNotifiesTray(false);
        report.setCompressionEnabled(true);
        report.calls.clear();
        QVERIFY(report.save(true));
        QCOMPARE(report.getLastSavedXML(), QString("/cust/public/reports/proposed.xml.gz"));
        QCOMPARE(manager()->count(), 1);
    }

    void overwritingIsAskedFor()
    {
        Controller report;
        report.setUp("a", 3);
        report.text = QString::fromUtf8("größer");
        QVERIFY(report.save());
        report.text = "new";
        QSignalSpy accepted(&report, &Report::reportOverwriteAccepted);
        QVERIFY(!report.save());
        QVERIFY(!report.save());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const QString path = onDisk("/cust/public/reports/a.txt");
        QCOMPARE(contentsOf(path), QByteArray("größer"));
        QVERIFY(manager()->currentDialog());
        QCOMPARE(manager()->waitingDialogs(), 0);
        QCOMPARE(manager()->currentDialog()->msg(), QString("Do you want to overwrite report Internal:/reports/a.txt?"));
        manager()->reject();
        QCOMPARE(accepted.count(), 0);
        QCOMPARE(report.calls.count("declined"), 1);
        QVERIFY(!report.calls.contains("failed"));

        QVERIFY(!report.save());
        connect(&report, &Report::reportOverwriteAccepted, &report, [&report] { QVERIFY(report.save(true)); });
        KIVNotification* question = manager()->currentDialog();
        manager()->accept();
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(contentsOf(path), QByteArray("new"));
        // An answer counts once.
        report.overwriteAccepted(question);
        report.overwriteAccepted(nullptr);
        QCOMPARE(accepted.count(), 1);
    }
    void compressedTwinsCount()
    {
        Controller report;
        report.setUp("a", 3);
        QVERIFY(writeFile(onDisk("/cust/public/reports/a.txt.gz"), "x"));
        report.setCompressionEnabled(true);
        QVERIFY(!report.save());
        QVERIFY(manager()->currentDialog());
        report.setCompressionEnabled(false);
        QVERIFY(report.save());
    }
    void reportsOfOtherProcessesThatComeMeanwhileAreAskedAbout()
    {
        // Another saves the same while gzip works.
        const QString reports = onDisk("/cust/public/reports/");
        const QString gzip = onDisk("/bin/gzip");
        const auto restore = qScopeGuard([path = qgetenv("PATH")] { qputenv("PATH", path); });
        qputenv("PATH", QFile::encodeName(onDisk("/bin")) + ':' + qgetenv("PATH"));
        for (const char* name : {"a.txt.gz", "a.txt"}) {
            QVERIFY(writeFile(gzip, "#!/bin/sh\nPATH=${PATH#*:}\nprintf theirs > " + QFile::encodeName(reports + name)
                                    + "\nexec gzip \"$@\"\n"));
            QVERIFY(QFile::setPermissions(gzip, QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner));
            Controller report;
            report.setUp("a", 3);
            report.setCompressionEnabled(true);
            report.save();
            QCOMPARE(contentsOf(reports + name), QByteArray("theirs"));
            QCOMPARE(manager()->currentDialog() != nullptr, name == QByteArray("a.txt.gz"));
            QVERIFY(!manager()->currentDialog() || manager()->currentDialog()->msg().contains("overwrite"));
            QVERIFY(!report.calls.contains("failed"));
            QVERIFY(QDir(reports).removeRecursively());
        }
    }
    void answersReachTheAskerAlone()
    {
        Controller other;
        other.setUp("b", 3);
        QVERIFY(other.save());
        QVERIFY(!other.save());
        QSignalSpy accepted(&other, &Report::reportOverwriteAccepted);
        {
            Controller gone;
            gone.setUp("b", 3);
            QVERIFY(!gone.save());
            QCOMPARE(manager()->waitingDialogs(), 1);
        }
        QTRY_COMPARE(manager()->waitingDialogs(), 0);
        Controller second;
        second.setUp("b", 3);
        QVERIFY(!second.save());
        QSignalSpy secondAccepted(&second, &Report::reportOverwriteAccepted);
        manager()->accept();
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(secondAccepted.count(), 0);
        manager()->reject();
        QCOMPARE(secondAccepted.count(), 0);
        QCOMPARE(second.calls.count("declined"), 1);
        QCOMPARE(other.calls.count("declined"), 0);
    }

    void failuresAreTold_data()
    {
        QTest::addColumn<QString>("obstacle");
        for (const char* obstacle : {"folder", "file in the way", "full", "long", "no pages", "read-only"})
            QTest::newRow(obstacle) << obstacle;
    }
    void failuresAreTold()
    {
        QFETCH(QString, obstacle);
        Controller report;
        report.setFolder("f");
        const bool hasPages = obstacle != "no pages";
        const QString name = obstacle == "long" ? QString(150, QChar(0xe9)) : QString("a");
        report.setUp(name, hasPages ? 3 : 0);
        report.text = QString(10'000, 'x');
        report.pages.clear();
        const QString target = onDisk("/cust/public/reports/f/" + name + ".txt");
        QSignalSpy generated(&report, &Report::reportGenerated);
        QSignalSpy files(&report, &Report::reportFilesChanged);
        if (obstacle == "folder")
            QVERIFY(QDir().mkpath(target));
        if (obstacle == "file in the way")
            QVERIFY(writeFile(onDisk("/cust/public/reports/f"), ""));
        const QByteArray folder = QFile::encodeName(onDisk("/cust/public/reports/f"));
        const auto unmount = qScopeGuard([&] { ::umount2(folder.constData(), MNT_DETACH); });
        if (obstacle == "read-only") {
            QVERIFY(QDir().mkpath(onDisk("/cust/public/reports/f")));
            if (::mount("none", folder.constData(), "tmpfs", MS_RDONLY, "size=2m") != 0)
                QSKIP("Only those who may mount a drive can have one that is read-only.");
        }
        if (obstacle == "full") {
            QVERIFY(writeFile(target, "former"));
            const FileSizeLimit limit(4096);
            QVERIFY(!report.save(true));
        } else {
            QVERIFY(!report.save(true));
        }
        QCOMPARE(generated.count() + files.count(), 0);
        QCOMPARE(report.calls.constLast(), QString("failed"));
        QVERIFY(manager()->currentDialog());
        QCOMPARE(manager()->currentDialog()->longLabel(), QString("Write Error"));
        QVERIFY(!report.calls.contains("written"));
        if (obstacle == "full")
            QCOMPARE(contentsOf(target), QByteArray("former"));
        QCOMPARE(names("/cust/public/reports/f").size(), obstacle == "full" || obstacle == "folder" ? 1 : 0);
    }

    void namesOfNoFileAreRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("problem");
        QTest::newRow("up") << ".." << "\"..\" is no name of a file.";
        QTest::newRow("out") << "../../x" << "The name may not have \"/\" in it.";
        QTest::newRow("NUL") << QString("a") + QChar(QChar::Null) + "b" << "The name may not have a NUL character in it.";
        QTest::newRow("256 bytes") << QString(249, 'x') << "The name may have 248 characters, it has 249.";
        QTest::newRow("256 bytes in Thai") << QString(86, QChar(0xe01)) << "The name may have 82 characters, it has 86.";
        QTest::newRow("255 bytes") << QString(248, 'x') << "";
        QTest::newRow("255 bytes with its own suffix") << QString(244, 'x') + ".txt" << "";
        QTest::newRow("255 bytes when composed") << QString("e") + QChar(0x301) + QString(246, 'x') << "";
    }
    void namesOfNoFileAreRefused()
    {
        QFETCH(QString, name);
        QFETCH(QString, problem);
        const bool isSaved = problem.isEmpty();
        Controller report;
        report.setFolder("f");
        report.setUp("a", 3);
        report.setCompressionEnabled(true);
        report.getSetting("reportName")->setValue(name);
        if (report.getSetting("reportName")->getValue() != name) {
            report.getSetting("reportName")->setValue("");
            report.proposed = name;
        }
        QCOMPARE(report.save(), isSaved);
        QCOMPARE(QFile::exists(onDisk("/cust/public/reports/f")), isSaved);
        QCOMPARE(manager()->currentDialog() != nullptr, !isSaved);
        if (!isSaved)
            QCOMPARE(manager()->currentDialog()->msg(), problem);
    }

    void recordsTellOfReports()
    {
        QVERIFY(m_backend->loadFile(UIUTILS_SERVICES_DIR "/workflow_manager_app.service.json"));
        QVERIFY(basemgr()->setValue(":config:basemgr:system:report_cdm_testType:", "otdr"));
        Controller report;
        report.setFolder("f");
        report.setUp("a", 5);
        report.setCdmTestTypeAndLabel();
        const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
        QVERIFY(report.save());
        const QString folder = "/cust/private/reports/metadata/f/";
        QCOMPARE(names(folder), QStringList({"a.html.metadata", "a.json.metadata", "a.pdf.metadata", "a.txt.metadata",
                                        "a.xml.metadata"}));
        const QJsonObject record = QJsonDocument::fromJson(contentsOf(onDisk(folder + "a.pdf.metadata"))).object();
        QCOMPARE(record.size(), 5);
        QCOMPARE(record["type"].toString() + record["format"].toString(), QString("resultPDF"));
        QCOMPARE(record["originFilePath"].toString(), QString("/cust/public/reports/f/a.pdf"));
        const QString stamp = record["timeStamp"].toString();
        QVERIFY2(QRegularExpression("T.*[+-]\\d\\d:\\d\\d$").match(stamp).hasMatch(), qPrintable(stamp));
        const QDateTime time = QDateTime::fromString(stamp, Qt::ISODate);
        QVERIFY(time >= before && time <= QDateTime::currentDateTime());
        QCOMPARE(record["info"].toObject(),
                QJsonObject({{"wo", "WO-88213"}, {"workflowId", "ethernet-turn-up"}, {"jobId", "WO-88213"},
                        {"testType", "otdr"}, {"testLabel", "None"}}));
        // A record of yesterday's job would tell of the wrong one.
        QVERIFY(basemgr()->setValue(activeItem, false));
        QVERIFY(m_backend->withdraw("orb.base.workflow_manager_app"));
        QVERIFY(report.save(true));
        QVERIFY(contentsOf(onDisk(folder + "a.txt.metadata")).contains("\"info\": {\n    }"));
    }
    void aRecordThatCannotBeWrittenHindersNothing()
    {
        QVERIFY(writeFile(onDisk("/cust/private/reports"), "no folder"));
        Controller report;
        report.setUp("a", 3);
        QVERIFY(report.save());
        QVERIFY(!manager()->currentDialog());
    }

    void savesCanBeCancelled()
    {
        Controller report;
        report.setUp("a", 5);
        QVector<double> progress;
        connect(&report, &Report::progressChanged, &report, [&] {
            progress << report.getProgress();
            QVERIFY(report.isSaving());
            if (progress.size() == 2)
                report.cancel();
        });
        QSignalSpy generated(&report, &Report::reportGenerated);
        QVERIFY(!report.save());
        QCOMPARE(progress, QVector<double>({0.2, 0.4}));
        QCOMPARE(names("/cust/public/reports"), QStringList({"a.pdf", "a.xml"}));
        QVERIFY(!manager()->currentDialog());
        QCOMPARE(generated.count(), 0);
        QVERIFY(!report.isSaving());
        // What is written is kept from the cloud all the same, and the next save is not cancelled.
        QVERIFY(contentsOf(onDisk("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt")).contains("a.xml"));
        QVERIFY(report.save(true));
        // Behind the last one there is nothing left to cancel.
        report.disconnect(&report);
        connect(&report, &Report::progressChanged, &report, [&] {
            if (report.getProgress() == 1)
                report.cancel();
        });
        QVERIFY(report.save(true));
        // Before the first format counts, too.
        report.disconnect(&report);
        report.setUp("b", 3);
        connect(&report, &Report::savingChanged, &report, &Report::cancel);
        QVERIFY(!report.save());
        QVERIFY(!QFile::exists(onDisk("/cust/public/reports/b.txt")));
        QVERIFY(!manager()->currentDialog());
    }
    void aSaveTellsTheNameThatItBeganWith()
    {
        Controller report;
        report.setUp("a", 5);
        QSignalSpy generated(&report, &Report::reportGenerated);
        connect(&report, &Report::savingChanged, &report, [&] { report.getSetting("reportFormat")->setValue(0); });
        QVERIFY(report.save());
        QCOMPARE(generated, QList<QVariantList>{{QString("a")}});
    }
    void pagesTellHowFarTheyAre()
    {
        Report report;
        ReportTemplate* document = &report.document();
        document->beginReport("t");
        document->beginTable("t", "T");
        for (int i = 0; i < 400; ++i)
            document->addRow("r", "row", i, {});
        document->endTable();
        document->endReport();
        report.getSetting("reportName")->setValue("a");
        QVector<double> progress;
        connect(&report, &Report::progressChanged, &report, [&] { progress << report.getProgress(); });
        QVERIFY(report.save());
        QVERIFY2(progress.size() > 4, qPrintable(QString::number(progress.size())));
        QVERIFY(std::is_sorted(progress.cbegin(), progress.cend()));
        report.cancel();
        QVERIFY(!report.generatePDFReport().isEmpty());
        QCOMPARE(progress.constLast(), 1.0);
        connect(&report, &Report::progressChanged, &report, &Report::cancel);
        const QByteArray before = contentsOf(onDisk("/cust/public/reports/a.pdf"));
        QVERIFY(!report.save(true));
        QVERIFY(!manager()->currentDialog());
        QCOMPARE(contentsOf(onDisk("/cust/public/reports/a.pdf")), before);
        // While the page lives on, it may take the controller along.
        report.disconnect();
        const QPointer<Report> dying(new Report);
        dying->document().adopt(*document);
        dying->setInteractive(true);
        connect(dying, &Report::progressChanged, dying, [&] { delete dying; });
        QVERIFY(!dying->save(true));
        QVERIFY(!dying);
    }

    void aNewSaveTakesTheQuestionBack()
    {
        Controller report;
        report.setUp("a", 3);
        QVERIFY(report.save());
        QVERIFY(!report.save());
        QSignalSpy accepted(&report, &Report::reportOverwriteAccepted);
        report.getSetting("reportName")->setValue("b");
        QVERIFY(report.save());
        // An answer now would have "b" overwritten, which nobody has asked about.
        QVERIFY(!manager()->currentDialog());
        manager()->accept();
        QCOMPARE(accepted.count(), 0);
    }

    void emptyNamesAndFoldersHaveDefaults()
    {
        Controller report;
        report.setUp("", 3);
        report.proposed.clear();
        report.setBaseDirectory(QString());
        QVERIFY(report.save());
        report.proposed = "1/10 GE";
        QVERIFY(report.save());
        QCOMPARE(names("/cust/public/reports"), QStringList({"1_10 GE.txt", "empty.txt"}));
    }

    void compressingReplacesThePlainReport()
    {
        Controller report;
        report.setUp("a", 3);
        QVERIFY(report.save());
        report.setCompressionEnabled(true);
        QVERIFY(!report.save());
        QCOMPARE(names("/cust/public/reports"), QStringList("a.txt"));
        QVERIFY(report.save(true));
        QCOMPARE(names("/cust/public/reports"), QStringList("a.txt.gz"));
        QCOMPARE(names("/cust/private/reports/metadata"), QStringList("a.txt.gz.metadata"));
    }

    void reportsStayFromTheCloudThoughOthersFail()
    {
        Controller report;
        report.setUp("a", 5);
        QVERIFY(QDir().mkpath(onDisk("/cust/public/reports/a.xml/x")));
        QVERIFY(!report.save(true));
        const QByteArray list = contentsOf(onDisk("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt"));
        QVERIFY(list.contains("/a.pdf\n") && list.contains("/a.txt\n") && !list.contains("/a.xml\n"));
    }
    void reportsThatCannotBeCompressedStayFromTheCloud()
    {
        Controller report;
        report.setUp("a", 3);
        report.setCompressionEnabled(true);
        const auto restore = qScopeGuard([path = qgetenv("PATH")] { qputenv("PATH", path); });
        qputenv("PATH", "/nowhere");
        QSignalSpy files(&report, &Report::reportFilesChanged);
        QVERIFY(!report.save());
        QCOMPARE(names("/cust/public/reports"), QStringList("a.txt"));
        QCOMPARE(files.count(), 1);
        QVERIFY(contentsOf(onDisk("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt"))
                        .contains("/cust/public/reports/a.txt\n"));
    }
    void theBaseManagerHearsOfAListThatOthersHaveMade()
    {
        const QString item(":config:basemgr:system:ss_nosync:stringARRAY:");
        QVERIFY(writeFile(onDisk("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt"), "/a.pdf\n/a.json\n"));
        Report().addReportToNoSyncList("/a.pdf");
        QCOMPARE(basemgr()->item(item)->getValue().toStringList(), QStringList({"/a.pdf", "/a.json"}));
    }

    void platformKeepsTheName()
    {
        int kept = 0;
        const auto count = [&kept](const QString&, QString*) { return ++kept > 0; };
        QVERIFY(basemgr()->setActionHandler(":action:basemgr:system:report_update_name_configs:", count));
        Controller report;
        report.setUp("a", 3);
        QVERIFY(report.save());
        QCOMPARE(kept, 1);
        report.keepsName = false;
        QVERIFY(report.save(true));
        QCOMPARE(kept, 1);
    }

    void syncChoiceIsRecorded()
    {
        Controller report;
        report.setUp("a", 3);
        QVERIFY(report.save());
        QVERIFY(report.save(true));
        const QString list = onDisk("/cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt");
        QCOMPARE(contentsOf(list), QByteArray("/cust/public/reports/a.txt\n/cust/public/reports/a.json\n"));
        QCOMPARE(basemgr()->item(":config:basemgr:system:ss_nosync:stringARRAY:")->getValue().toStringList().size(), 2);
        report.getSetting("reportSync_SS")->setValue(true);
        QVERIFY(report.save(true));
        QCOMPARE(contentsOf(list), QByteArray());
    }
    void aListThatCannotBeReadIsNotReplaced()
    {
        Controller report;
        report.setUp("a", 3);
        const QString folder = onDisk("/cust/private/lastconfigs/base/basemgr/system");
        QVERIFY(QDir().mkpath(folder + "/nosync_fileList.txt/x"));
        // The report is safe; that it may be synced the user has to know.
        QVERIFY(report.save());
        QCOMPARE(manager()->currentDialog()->longLabel(), QString("Sync"));
        manager()->accept();
        // A page that goes when its reports are saved takes the dialog along; two reports are one mishap.
        manager()->clear();
        {
            Controller leaving;
            leaving.setUp("b", 5);
            leaving.setNotifiesTray(false);
            QVERIFY(leaving.save());
        }
        QVERIFY(!manager()->currentDialog());
        QCOMPARE(manager()->count(), 1);
        QVERIFY(QDir(folder + "/nosync_fileList.txt").removeRecursively());
        const QByteArray foreign("/cust/public/caf\xe9\n\n/x\n/x\n");
        QVERIFY(writeFile(folder + "/nosync_fileList.txt", foreign));
        report.addReportToNoSyncList("/cust/a\n/cust/b");
        QCOMPARE(manager()->currentDialog()->longLabel(), QString("Sync"));
        QCOMPARE(contentsOf(folder + "/nosync_fileList.txt"), foreign);
        report.addReportToNoSyncList("/y.z/w");
        QCOMPARE(contentsOf(folder + "/nosync_fileList.txt"), QByteArray("/cust/public/caf\xe9\n/x\n/y.z/w\n/y.z/w.json\n"));
        // The JSON report that was kept back is not given away with the others of its name.
        report.writeNoSyncListToFile({});
        for (const char* path : {"/cust/a.pdf", "/cust/a.xml", "/cust/b.pdf", "/cust/b.json"})
            report.addReportToNoSyncList(path);
        QVERIFY(writeFile(onDisk("/cust/b.json"), "{}"));
        report.removeReportFromNoSyncList("/cust/a.pdf");
        report.removeReportFromNoSyncList("/cust/b.pdf");
        QCOMPARE(contentsOf(folder + "/nosync_fileList.txt"), QByteArray("/cust/a.json\n/cust/a.xml\n/cust/b.json\n"));
        report.removeReportFromNoSyncList("/cust/a.xml");
        report.removeReportFromNoSyncList("/cust/b.json");
        QCOMPARE(contentsOf(folder + "/nosync_fileList.txt"), QByteArray());
        report.writeNoSyncListToFile({"/1", "/2", "/1"});
        QCOMPARE(contentsOf(folder + "/nosync_fileList.txt"), QByteArray("/1\n/2\n"));
        QCOMPARE(basemgr()->item(":config:basemgr:system:ss_nosync:stringARRAY:")->getValue().toStringList(),
                QStringList({"/1", "/2"}));
    }

    void jobsTakeReportsOrSayWhyNot()
    {
        Controller report;
        QVERIFY(report.writeToJobManager());
        QVERIFY(!manager()->currentDialog());
        QVERIFY(basemgr()->setValue(activeItem, false));
        QVERIFY(!report.writeToJobManager());
        QCOMPARE(manager()->currentDialog()->msg(), QString("There is no active job"));
    }

    void viewerIsStarted()
    {
        const QString viewer = onDisk("/base/bin/pdf_viewer");
        QVERIFY(writeFile(
                viewer, "#!/bin/sh\nprintf '%s\\n' \"$PWD\" \"$@\" > arguments.part\nmv arguments.part arguments\n"));
        QVERIFY(QFile::setPermissions(viewer, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QVERIFY(QDir().mkpath(onDisk("/base/qml/pdf_viewer")));
        Report report;
        report.showPDF("/cust/a.PDF");
        report.showPDF("");
        report.showPDF("/cust/a b.pdf.gz");
        const QString arguments = onDisk("/base/qml/pdf_viewer/arguments");
        QTRY_VERIFY(QFile::exists(arguments));
        QCOMPARE(QString::fromUtf8(contentsOf(arguments)).split('\n'),
                QStringList({onDisk("/base/qml/pdf_viewer"), "-plugin", "EvdevTouch:/dev/input/event1", "--dpy", "85",
                        "-s", onDisk("/cust/a b.pdf.gz"), "-t", "View Report", ""}));
        QVERIFY(QFile::remove(arguments));
        report.setTitle("Shown again");
        report.showPDF("");
        QTRY_VERIFY(QFile::exists(arguments));
        QVERIFY(contentsOf(arguments).endsWith("/cust/a b.pdf.gz\n-t\nShown again\n"));
    }

    void aPageSaves()
    {
        uiutils::registerTypes("UiUtils");
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData(R"(
            import QtQml 2.15
            import UiUtils 1.0
            Report {
                folder: "page"
                property string saved
                property string label: settings.reportFormat.label
                onReportGenerated: saved = filename
                Component.onCompleted: {
                    getSetting("reportName").value = "q"
                    getSetting("reportFormat").value = 1
                    startPossibleSave()
                    save()
                    gc()
                }
            }
        )",
                QUrl());
        const std::unique_ptr<QObject> page(component.create());
        QVERIFY2(page, qPrintable(component.errorString()));
        QCOMPARE(page->property("saved").toString(), QString("/cust/public/reports/page/q.xml"));
        QCOMPARE(page->property("label").toString(), QString("Format"));
        QVERIFY(page->findChild<StringUiData*>());
    }

    void builtInPagesAndMarkup()
    {
        Report report;
        report.setTitle("Own title");
        writeTemplate("rows.json", ", 'table_0': {'node_type': 'table', 'title': 'T', 'num_columns': 1}");
        report.setTemplatePath("/cust/rows.json");
        QVERIFY(report.generatePDFReport().startsWith("%PDF-"));
        QVERIFY(Report::m_reportItems.isEmpty());
        QVERIFY(report.generateHtmlReport().contains("Own title"));
        report.setShowSoftwareRevs(false);
        QVERIFY(!report.generateHtmlReport().contains("Software Revisions"));
        QVERIFY(report.generateXmlReport().startsWith("<?xml"));
    }
};

QTEST_MAIN(ReportSavingTest)

#include "tst_reportsaving.moc"
