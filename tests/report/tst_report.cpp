#include "reportfixture.h"

/// What a controller knows: properties, names, formats, settings.
class ReportTest : public ReportFixture
{
    Q_OBJECT

private Q_SLOTS:
    void settersTellOfChangesAlone_data()
    {
        QTest::addColumn<Setter>("set");
        QTest::addColumn<QStringList>("emissions");
        const auto add = [](const char* name, const Setter& set, const QStringList& emissions) {
            QTest::newRow(name) << set << emissions;
        };
        const QStringList folder{"folderChanged", "reportFilesChanged", "saveLocationChanged"};
        add(
                "tag", [](Report& r) { r.setTag("x"); }, QStringList("tagChanged") + folder);
        add(
                "folder", [](Report& r) { r.setFolder("x"); }, folder);
        add("title", [](Report& r) { r.setTitle("x"); }, {"titleChanged"});
        add("subject", [](Report& r) { r.setSubject("x"); }, {"subjectChanged"});
        add("orientation", [](Report& r) { r.setOrientation("landscape"); }, {"orientationChanged"});
        add("file", [](Report& r) { r.setCanWriteToFile(true); }, {"canWriteToFileChanged"});
        add("job", [](Report& r) { r.setCanWriteToJobManager(true); }, {"canWriteToJobManagerChanged"});
        add("job info", [](Report& r) { r.setIncludeJobInfo(true); }, {"includeJobInfoChanged"});
        add("hardware", [](Report& r) { r.setShowHardwareRevs(false); }, {"showHardwareRevsChanged"});
        add("software", [](Report& r) { r.setShowSoftwareRevs(false); }, {"showSoftwareRevsChanged"});
        add("schema", [](Report& r) { r.setJobSchema("x"); }, {"jobSchemaChanged"});
        add("screenshots", [](Report& r) { r.setScreenshotList({"x"}); }, {"screenshotListChanged"});
        add("customer", [](Report& r) { r.setIncludeCustomerInfo(true); }, {});
        add("tray", [](Report& r) { r.setNotifiesTray(false); }, {});
    }
    void settersTellOfChangesAlone()
    {
        QFETCH(Setter, set);
        Report report;
        Emissions emissions(report);
        set(report);
        set(report);
        QTEST(emissions.names, "emissions");
    }

    void templateStandsBehindTheProperties()
    {
        Report report;
        QCOMPARE(report.getOrientation(), QString("portrait"));
        QCOMPARE(report.getTitle(), QString());
        writeTemplate("a.json",
                ", 'title': 'Template', 'subject': 'S', 'orientation': 'landscape', "
                "'canWriteToFile': 'true', 'canWriteToJobManager': 'true'");
        Emissions emissions(report);
        report.setTemplatePath("/cust/a.json");
        QCOMPARE(emissions.names,
                QStringList({"templatePathChanged", "tagChanged", "orientationChanged", "titleChanged", "subjectChanged",
                        "reportFilesChanged", "canWriteToJobManagerChanged", "canWriteToFileChanged"}));
        QCOMPARE(report.getTitle() + report.getSubject() + report.getOrientation(), QString("TemplateSlandscape"));
        QCOMPARE(report.getTag() + "," + report.getFolder(), QString("otdr,otdr"));
        QVERIFY(report.getCanWriteToFile());
        QVERIFY(report.getCanWriteToJobManager());
        report.setCanWriteToFile(false);
        QVERIFY(!report.getCanWriteToFile());

        // One that cannot be read changes nothing.
        emissions.names.clear();
        QVERIFY(writeFile(onDisk("/cust/torn.json"), json("{'tag': 'x'")));
        report.setTemplatePath("/cust/torn.json");
        report.setTemplatePath("/cust/missing.json");
        QCOMPARE(emissions.names, QStringList());
        QCOMPARE(report.getTitle() + report.getTemplatePath(), QString("Template/cust/a.json"));
    }

    void servicesAreFollowed()
    {
        Report report;
        report.setCanWriteToJobManager(true);
        Emissions emissions(report);
        QVERIFY(basemgr()->setValue(activeItem, false));
        QTRY_COMPARE(emissions.names, QStringList({"canWriteToJobManagerChanged", "jobSummaryChanged"}));
        QVERIFY(!report.getCanWriteToJobManager());
        emissions.names.clear();
        QVERIFY(basemgr()->setValue(":result:basemgr:jobmanager:jobID:", "2"));
        QTRY_COMPARE(emissions.names, QStringList({"jobSummaryChanged"}));
        emissions.names.clear();
        QVERIFY(basemgr()->setValue(usbItem, true));
        QVERIFY(basemgr()->setValue(locationItem, 1));
        QTRY_COMPARE(emissions.names, QStringList({"saveLocationChanged", "saveLocationChanged"}));
        QCOMPARE(report.getSaveLocation(), QString("USB:/"));
        QCOMPARE(report.getSaveFilePath("a", ".pdf"), QString("/mnt/usb/a.pdf"));
        QVERIFY(basemgr()->setValue(usbItem, false));
        QCOMPARE(report.getSaveLocation(), QString("Internal:/reports/"));

        // A service that comes back has items of its own.
        basemgr()->setReachable(false);
        basemgr()->setReachable(true);
        QCoreApplication::processEvents();
        emissions.names.clear();
        QVERIFY(basemgr()->setValue(activeItem, true));
        QTRY_COMPARE(emissions.names, QStringList({"canWriteToJobManagerChanged", "jobSummaryChanged"}));
    }

    void testTypeAndLabel()
    {
        Report report;
        report.setCdmTestTypeAndLabel();
        QCOMPARE(report.getCdmTestType() + report.getCdmTestLabel(), QString("noneNone"));
        QVERIFY(basemgr()->setValue(":config:basemgr:system:report_cdm_testType:", "OTDR"));
        report.setCdmTestTypeAndLabel();
        QCOMPARE(report.getCdmTestType() + report.getCdmTestLabel(), QString("OTDRNone"));
    }

    void names_data()
    {
        QTest::addColumn<QString>("given");
        QTest::addColumn<bool>("isAccepted");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("folder");
        QTest::newRow("one") << "a" << true << "a.pdf"
                             << "a/";
        QTest::newRow("50") << QString(50, 'a') << true << QString(50, 'a') + ".pdf" << QString(50, 'a') + "/";
        QTest::newRow("51") << QString(51, 'a') << false << QString(51, 'a') + ".pdf" << QString(51, 'a') + "/";
        QTest::newRow("dots") << ".." << true << "_.pdf"
                              << "_/";
        QTest::newRow("more dots") << "..." << true << "....pdf"
                                   << ".../";
        QTest::newRow("climbing") << "../x" << false << ".._x.pdf"
                                  << "_/x/";
        QTest::newRow("climbing inside") << "x/../../y" << false << "x_.._.._y.pdf"
                                         << "x/_/_/y/";
        QTest::newRow("from the root") << "/etc" << false << "_etc.pdf"
                                       << "etc/";
        QTest::newRow("line feed") << "a\nb" << true << "a_b.pdf"
                                   << "a_b/";
        QTest::newRow("control") << QString::fromLatin1("a\0\x1b\x7f", 4) << false << "a___.pdf"
                                 << "a___/";
        QTest::newRow("suffixed") << "a.pdf" << true << "a.pdf"
                                  << "a.pdf/";
        QTest::newRow("other case") << "a.PDF" << true << "a.PDF.pdf"
                                    << "a.PDF/";
        QTest::newRow("marks") << QString::fromUtf8("ไทยี่ नमस्ते e\u0301") << true << QString::fromUtf8("ไทยี่ नमस्ते é.pdf")
                               << QString::fromUtf8("ไทยี่ नमस्ते é/");
        QTest::newRow("letters") << QString::fromUtf8("Größe 1") << true << QString::fromUtf8("Größe 1.pdf")
                                 << QString::fromUtf8("Größe 1/");
    }
    void names()
    {
        QFETCH(QString, given);
        Report report;
        QString entered = given;
        int position = 0;
        const QValidator* validator = qobject_cast<UiData*>(report.getSetting("reportName"))->getValidator();
        QTEST(validator->validate(entered, position) == QValidator::Acceptable, "isAccepted");
        QTEST(uiutils::reportPath("", given, ".pdf").mid(1), "file");
        QTEST(uiutils::reportFolder("/b", "", given).mid(3), "folder");
    }

    void proposedNamesAndFolders()
    {
        const QDateTime time(QDate(2025, 3, 3), QTime(14, 5, 9));
        QCOMPARE(uiutils::proposedReportName("Fiber Test", time), QString("Fiber_Test_030325140509"));
        QCOMPARE(uiutils::proposedReportName("R&D\r\n", time), QString("RD___030325140509"));
        QVERIFY(QRegularExpression("^_\\d{12}$").match(Report().proposedFileName()).hasMatch());
        QCOMPARE(uiutils::reportFolder("/b", "Pro/../v", "a/b"), QString("/b/Pro/_/v/a/b/"));
        QCOMPARE(uiutils::reportFolder("/b/", "Prov", ""), QString("/b/"));
        QCOMPARE(uiutils::reportSettingsPath("otdr"), QString("/cust/private/lastconfigs/reportSettings/otdr.json"));
    }

    void formatsAndSuffixes()
    {
        Controller report;
        QStringList suffixes;
        for (int format = -1; format <= 6; ++format) {
            report.getSetting("reportFormat")->setValue(format);
            suffixes << report.getSuffixForReport();
            const QVector<bool> answers{
                    report.isPDF(), report.isXml(), report.isHtml(), report.isText(), report.isJson(), report.isAll()};
            QCOMPARE(answers.indexOf(true), format > 5 ? -1 : format);
            QCOMPARE(answers.count(true), format < 0 || format > 5 ? 0 : 1);
        }
        QCOMPARE(suffixes, QStringList({"", ".pdf", ".xml", ".html", ".txt", ".json", "", ""}));
        report.getSetting("reportFormat")->setValue(QVariant());
        QCOMPARE(report.getFormat(), -1);
    }

    void settingsSurvive()
    {
        Controller first;
        first.setFolder("otdr/a");
        first.setUp("mine", 2);
        first.getSetting("reportSync_SS")->setValue(true);
        first.saveSettings();
        const QString path = onDisk("/cust/private/lastconfigs/reportSettings/otdr/a.json");
        QCOMPARE(QJsonDocument::fromJson(contentsOf(path)).object(),
                QJsonObject({{"reportName", "mine"}, {"reportFormat", 2}, {"reportSync_SS", true}}));
        Controller second;
        second.setFolder("otdr/a");
        second.setFormatApplicable(2, true);
        QTRY_COMPARE(second.getSetting("reportName")->getValue(), QVariant("mine"));
        QCOMPARE(second.getFormat(), 2);
        QCOMPARE(second.getSetting("reportSync_SS")->getValue(), QVariant(true));
        // What is not offered is not taken either.
        Controller third;
        third.setFolder("otdr/a");
        third.loadSettings();
        QCOMPARE(third.getFormat(), 0);
    }

    /// A page that saves as soon as it is there has not seen them yet.
    void storedSettingsOutliveAnEarlySave()
    {
        const QString path = onDisk("/cust/private/lastconfigs/reportSettings/.json");
        QVERIFY(writeFile(path, json("{'reportName': 'mine', 'reportFormat': 1, 'reportSync_SS': true}")));
        Controller early;
        early.getSetting("reportName")->setValue("autosave");
        early.saveSettings();
        QCOMPARE(QJsonDocument::fromJson(contentsOf(path)).object(),
                QJsonObject({{"reportName", "autosave"}, {"reportFormat", 1}, {"reportSync_SS", true}}));
        early.loadSettings();
        early.getSetting("reportSync_SS")->setValue(false);
        early.getSetting("reportFormat")->setValue(0);
        early.saveSettings();
        QCOMPARE(QJsonDocument::fromJson(contentsOf(path)).object(),
                QJsonObject({{"reportName", "autosave"}, {"reportFormat", 0}, {"reportSync_SS", false}}));
    }

    void brokenSettings_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QString>("log");
        QTest::addColumn<QString>("name");
        const QString parse = "ERROR: Could not parse Json text:\n%1";
        QTest::newRow("empty") << QByteArray("") << parse.arg("illegal value") << "";
        QTest::newRow("torn") << json("{'reportName': 'a") << parse.arg("unterminated string") << "";
        QTest::newRow("list") << QByteArray("[1]") << parse.arg("the file holds no object") << "";
        QTest::newRow("huge") << QByteArray(uiutils::largestReportSettings + 1, ' ') << parse.arg("the file is too large")
                              << "";
        QTest::newRow("wrong shapes") << json("{'reportName': {}, 'reportFormat': '1', 'reportSync_SS': 7}") << ""
                                      << "";
        QTest::newRow("forbidden values") << json("{'reportName': '../x', 'reportFormat': 99}") << ""
                                          << "";
        QTest::newRow("halves and strangers") << json("{'reportFormat': 1.5, 'x': 1, 'reportName': 'ok'}") << ""
                                              << "ok";
    }
    void brokenSettings()
    {
        QFETCH(QByteArray, contents);
        QFETCH(QString, log);
        Controller report;
        QVERIFY(writeFile(onDisk("/cust/private/lastconfigs/reportSettings/.json"), contents));
        if (!log.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, qPrintable(log));
        report.loadSettings();
        QTEST(report.getSetting("reportName")->getValue().toString(), "name");
        QCOMPARE(report.getFormat(), 0);
        QCOMPARE(report.getSetting("reportSync_SS")->getValue().toBool(), false);
    }
    void ownSettings_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("stored") << json("{'own': 9}") << QVariant(9);
        QTest::newRow("not stored") << QByteArray("{}") << QVariant(7);
        QTest::newRow("null") << json("{'own': null}") << QVariant(7);
        QTest::newRow("object") << json("{'own': {'a': 1}}") << QVariant(7);
        QTest::newRow("text") << json("{'own': 'many'}") << QVariant(7);
        QTest::newRow("out of range") << json("{'own': 11}") << QVariant(7);
    }
    void ownSettings()
    {
        QFETCH(QByteArray, contents);
        Controller report;
        auto* own = new UiData;
        own->setAttributes({{"name", "own"}, {"type", UiData::TYPE_INT}, {"minRange", 0}, {"maxRange", 10}});
        own->setValue(7);
        report.addSetting(own);
        QVERIFY(writeFile(onDisk("/cust/private/lastconfigs/reportSettings/.json"), contents));
        report.loadSettings();
        QTEST(own->getValue(), "value");
    }
    void unreachableSettings()
    {
        Controller report;
        const QString path = "/cust/private/lastconfigs/reportSettings/.json";
        QTest::ignoreMessage(QtWarningMsg, qPrintable("Could not open " + path + " for reading"));
        report.loadSettings();
        QVERIFY(QDir().mkpath(onDisk(path)));
        QTest::ignoreMessage(QtWarningMsg, qPrintable("Could not open " + path + " for reading"));
        report.loadSettings();
        QTest::ignoreMessage(QtWarningMsg, qPrintable("Could not open " + path + " for writing"));
        report.saveSettings();
        // Nobody writes into this pipe.
        QVERIFY(QDir().rmdir(onDisk(path)) && ::mkfifo(onDisk(path).toLocal8Bit().constData(), 0600) == 0);
        QTest::ignoreMessage(QtWarningMsg, qPrintable("Could not open " + path + " for reading"));
        report.loadSettings();
    }
};

QTEST_MAIN(ReportTest)

#include "tst_report.moc"
