#include "reportfixture.h"

/// The data of a controller: properties, names, formats, settings.
class ReportTest : public ReportFixture
{
    Q_OBJECT

    QString settingsFile(const QString& folder) const
    {
        return onDisk("/cust/private/lastconfigs/reportSettings/" + folder + ".json");
    }
    QJsonObject stored(const QString& folder) const
    {
        return QJsonDocument::fromJson(contentsOf(settingsFile(folder))).object();
    }

private Q_SLOTS:
    void settersEmitChangesOnly()
    {
        const QVector<std::tuple<const char*, QVariant, QString>> rows{
                {"tag", "x", "tagChanged folderChanged reportFilesChanged saveLocationChanged"},
                {"folder", "y", "folderChanged reportFilesChanged saveLocationChanged"},
                {"baseDirectory", "/x/", "reportFilesChanged saveLocationChanged"},
                {"title", "x", "titleChanged"}, {"subject", "x", "subjectChanged"},
                {"orientation", "landscape", "orientationChanged"}, {"canWriteToFile", true, "canWriteToFileChanged"},
                {"canWriteToJobManager", true, "canWriteToJobManagerChanged"},
                {"includeJobInfo", true, "includeJobInfoChanged"},
                {"showHardwareRevs", false, "showHardwareRevsChanged"},
                {"showSoftwareRevs", false, "showSoftwareRevsChanged"}, {"jobSchema", "x", "jobSchemaChanged"},
                {"screenshotList", QStringList("x"), "screenshotListChanged"}, {"includeCustomerInfo", true, ""},
                {"notifiesTray", false, ""}};
        Report report;
        SignalLog emissions(&report);
        for (const auto& [name, value, expected] : rows) {
            QVERIFY(report.property(name) != value);
            emissions.names.clear();
            for (int i = 0; i < 2; ++i)
                QVERIFY(report.setProperty(name, value));
            QCOMPARE(report.property(name), value);
            QCOMPARE(emissions.names.join(' '), expected);
        }
    }

    void templateIsBelowTheProperties()
    {
        Report report;
        QCOMPARE(report.getOrientation(), QString("portrait"));
        QCOMPARE(report.getTitle(), QString());
        writeTemplate("a.json",
                ", 'title': 'Template', 'subject': 'S', 'orientation': 'landscape', "
                "'canWriteToFile': 'true', 'canWriteToJobManager': 'true'");
        SignalLog emissions(&report);
        report.setTemplatePath("/cust/a.json");
        QCOMPARE(emissions.names,
                QStringList({"templatePathChanged", "tagChanged", "orientationChanged", "titleChanged", "subjectChanged",
                        "reportFilesChanged", "canWriteToJobManagerChanged", "canWriteToFileChanged",
                        "folderChanged", "saveLocationChanged"}));
        // If the folder is unchanged, nothing is emitted.
        emissions.names.clear();
        report.setTemplatePath("/cust/a.json");
        QCOMPARE(emissions.names.constLast(), QString("canWriteToFileChanged"));
        QCOMPARE(report.getTitle() + report.getSubject() + report.getOrientation(), QString("TemplateSlandscape"));
        QCOMPARE(report.getTag() + "," + report.getFolder(), QString("otdr,otdr"));
        QVERIFY(report.getCanWriteToFile());
        QVERIFY(report.getCanWriteToJobManager());
        report.setCanWriteToFile(false);
        QVERIFY(!report.getCanWriteToFile());

        // A list that cannot be read changes nothing.
        emissions.names.clear();
        writeFile(onDisk("/cust/torn.json"), json("{'tag': 'x'"));
        report.setTemplatePath("/cust/torn.json");
        report.setTemplatePath("/cust/missing.json");
        QCOMPARE(emissions.names, QStringList());
        QCOMPARE(report.getTitle() + report.getTemplatePath(), QString("Template/cust/a.json"));
    }

    void servicesAreFollowed()
    {
        Report report;
        report.setCanWriteToJobManager(true);
        SignalLog emissions(&report);
        QVERIFY(basemgr()->setValue(activeItem, false));
        QTRY_COMPARE(emissions.names, QStringList({"canWriteToJobManagerChanged", "jobSummaryChanged"}));
        QVERIFY(!report.getCanWriteToJobManager());
        emissions.names.clear();
        QVERIFY(basemgr()->setValue(":result:basemgr:jobmanager:jobID:", "2"));
        QTRY_COMPARE(emissions.names, QStringList({"jobSummaryChanged"}));
        emissions.names.clear();
        QVERIFY(basemgr()->setValue(usbItem, true));
        QVERIFY(basemgr()->setValue(locationItem, 1));
        QTRY_COMPARE(emissions.names, QStringList({"reportFilesChanged", "saveLocationChanged", "reportFilesChanged",
                                              "saveLocationChanged"}));
        QCOMPARE(report.getSaveLocation(), QString("USB:/"));
        QCOMPARE(report.getSaveFilePath("a", ".pdf"), QString("/mnt/usb/a.pdf"));
        QVERIFY(basemgr()->setValue(usbItem, false));
        QCOMPARE(report.getSaveLocation(), QString("Internal:/reports/"));

        // A service that returns has new items.
        basemgr()->setReachable(false);
        basemgr()->setReachable(true);
        QCoreApplication::processEvents();
        emissions.names.clear();
        QVERIFY(basemgr()->setValue(activeItem, true));
        QTRY_COMPARE(emissions.names, QStringList({"canWriteToJobManagerChanged", "jobSummaryChanged"}));
    }

    /// Programs may set what the user cannot enter.
    void namesLeadNowhereElse()
    {
        const QString longest(50, 'a');
        const std::tuple<QString, bool, QString, QString> rows[]{{longest, true, longest + ".pdf", longest + "/"},
                {longest + "a", false, longest + "a.pdf", longest + "a/"}, {"..", true, "_.pdf", "_/"},
                {"...", true, "....pdf", ".../"}, {"../x", false, ".._x.pdf", "_/x/"},
                {"x/../../y", false, "x_.._.._y.pdf", "x/_/_/y/"}, {"/etc", false, "_etc.pdf", "etc/"},
                {QString::fromLatin1("a\0\x1b\x7f", 4), false, "a___.pdf", "a___/"}, {"a.pdf", true, "a.pdf", "a.pdf/"},
                {"a.PDF", true, "a.PDF.pdf", "a.PDF/"}, {"Größe ไทยี่", true, "Größe ไทยี่.pdf", "Größe ไทยี่/"},
                {"नमस्ते e\u0301", true, "नमस्ते é.pdf", "नमस्ते é/"}};
        Report report;
        const QValidator* validator = qobject_cast<UiData*>(report.getSetting("reportName"))->getValidator();
        for (const auto& [given, isAccepted, file, folder] : rows) {
            QString entered = given;
            int position = 0;
            QCOMPARE(validator->validate(entered, position) == QValidator::Acceptable, isAccepted);
            QCOMPARE(uiutils::reportPath("", given, ".pdf").mid(1), file);
            QCOMPARE(uiutils::reportFolder("/b", "", given).mid(3), folder);
        }
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

    /// A derived controller that overrides nothing.
    void defaults()
    {
        Controller other("x", 5);
        Report report;
        QSignalSpy changes(&report, &Report::settingsChanged);
        report.startPossibleSave();
        report.setCustomDefaultReportName("x");
        QCOMPARE(changes.count(), 0);
        QCOMPARE(report.getSetting("reportName")->getValue(), QVariant(""));
        QVERIFY(report.getConstSetting("reportName") == report.getSetting("reportName") && !report.getSetting("x"));
        QCOMPARE(report.cannotGenerateReportMessage() + report.generateTxtReport() + report.generateJsonReport(), QString());
        QVERIFY(!report.hasCustomPDF());
        QCOMPARE(report.getReportFilePath(), QString("/cust/public/reports/"));
        QCOMPARE(report.getCdmTestType() + report.getCdmTestLabel(), QString());
        report.setCdmTestTypeAndLabel();
        QCOMPARE(report.getCdmTestType() + report.getCdmTestLabel(), QString("noneNone"));
        // The choice of another controller does not count.
        QCOMPARE(other.getSuffixForReport(), QString());
        QCOMPARE(report.getSuffixForReport(), QString(".pdf"));
        report.getSetting("reportFormat")->setValue(QVariant());
        QCOMPARE(report.getFormat(), -1);
        QVERIFY(!report.isPDF() && !report.isAll());
    }

    void thePlatformForgetsTheProposedName()
    {
        const QString id(":result:basemgr:system:reportCustomDefaultName:");
        QVERIFY(basemgr()->setValue(id, "of the test before"));
        const Report report;
        QCOMPARE(basemgr()->item(id)->getValue(), QVariant(""));
        // Clients can do nothing else to it.
        KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
        QVERIFY(!client->setItem(id, "theirs") && client->getLastError().contains("it can only be emptied"));
        QVERIFY(!client->setItem(usbItem, ""));
    }

    void settingsBelongToTheirFolder()
    {
        writeFile(settingsFile(""), json("{'reportName': 'none', 'reportFormat': 1}"));
        writeFile(settingsFile("a/b"), json("{'reportName': 'of a', 'reportFormat': 1, 'reportSync_SS': true}"));
        writeFile(settingsFile("c"), json("{'reportName': 'of c', 'reportFormat': 0}"));
        Controller report;
        const auto values = [&report] {
            return report.getSetting("reportName")->getValue().toString() + " " + QString::number(report.getFormat())
                    + (report.getSetting("reportSync_SS")->getValue().toBool() ? " synced" : "");
        };
        // The settings of the first folder are read when the page has set it.
        report.setFolder("a/b");
        QCOMPARE(values(), QString(" 0"));
        QTRY_COMPARE(values(), QString("of a 1 synced"));
        // A setting that a folder has not stored gets its initial value; the user's choices stay.
        QStringList heard;
        connect(&report, &Report::folderChanged, &report, [&] { heard << values(); });
        report.setFolder("c");
        report.getSetting("reportSync_SS")->setValue(true);
        report.setFolder("d");
        report.getSetting("reportName")->setValue("mine");
        report.setFolder("");
        report.setTag("a/b");
        writeTemplate("c.json", "");
        report.setTag("");
        report.setTemplatePath("/cust/c.json");
        QCOMPARE(heard, QStringList({"of c 0", " 0 synced", "mine 1 synced", "mine 1 synced", "mine 1 synced", "mine 0 synced"}));
        report.setFolder("c");
        report.saveSettings();
        QCOMPARE(stored("c"), QJsonObject({{"reportName", "mine"}, {"reportFormat", 0}, {"reportSync_SS", true}}));
        QCOMPARE(stored("a/b")["reportName"].toString(), QString("of a"));
        QVERIFY(!QFile::exists(settingsFile("d")));
    }
    /// A page that saves during its creation has not read them yet; nor has one whose document has another tag.
    void whatWasNotLoadedIsNotReplaced()
    {
        const QByteArray before = json("{'reportName': 'theirs', 'reportFormat': 1, 'reportSync_SS': true}");
        const QJsonObject after{{"reportName", "mine"}, {"reportFormat", 1}, {"reportSync_SS", true}};
        writeFile(settingsFile(""), before);
        writeFile(settingsFile("otdr"), before);
        Controller early;
        QCoreApplication::sendPostedEvents(&early);
        early.getSetting("reportName")->setValue("mine");
        early.saveSettings();
        QCOMPARE(stored(""), after);
        early.loadSettings();
        writeTemplate("a.json", "");
        early.document().readFile(onDisk("/cust/a.json"));
        early.saveSettings();
        QCOMPARE(stored("otdr"), after);
        early.loadSettings();
        early.getSetting("reportSync_SS")->setValue(false);
        early.getSetting("reportFormat")->setValue(0);
        early.saveSettings();
        QCOMPARE(stored("otdr"), QJsonObject({{"reportName", "mine"}, {"reportFormat", 0}, {"reportSync_SS", false}}));
    }
    void whatAConstructorSetsIsTheDefault()
    {
        struct Derived : Controller
        {
            UiData* own = new StringUiData;
            QStringList log;
            Derived()
            {
                own->setAttributes({{"name", "own"}, {"type", UiData::TYPE_STRING}});
                addSetting(own);
                own->setValue("default");
            }
            void settingsLoaded() override { log << own->getValue().toString(); }
        };
        for (const QString& chosen : QStringList({"stored", "mine"})) {
            writeFile(settingsFile(""), json("{'own': 'stored'}"));
            Derived report;
            if (chosen == "mine") {
                QCoreApplication::sendPostedEvents(&report);
                report.own->setValue(chosen);
            }
            report.loadSettings();
            QCOMPARE(report.own->getValue(), QVariant(chosen));
            // First the settings of another folder, then the notifiers, then the hook.
            const SignalLog emissions(&report, &report.log);
            const QString taken = chosen == "mine" ? chosen : "default";
            report.setTag("t");
            report.setFolder("f");
            QCOMPARE(report.log, QStringList({"tagChanged", "folderChanged", "reportFilesChanged", "saveLocationChanged", taken,
                                         "folderChanged", "reportFilesChanged", "saveLocationChanged", taken}));
            report.setFolder("");
            report.setTag("");
            writeTemplate("a.json", "");
            report.setTemplatePath("/cust/a.json");
            QCOMPARE(report.log.mid(report.log.size() - 2), QStringList({"saveLocationChanged", taken}));
        }
    }
    void unreadableFilesStay()
    {
        const QString place = settingsFile("x");
        const QString log = "Could not open /cust/private/lastconfigs/reportSettings/x.json for ";
        const QByteArray theirs = json("{'reportName': 'theirs', 'reportFormat': 1, 'reportSync_SS': true}");
        writeFile(settingsFile(""), json("{'reportName': 'of none', 'reportFormat': 1}"));
        QVERIFY(QDir().mkpath(place));
        Controller report;
        report.loadSettings();
        QTest::ignoreMessage(QtWarningMsg, qPrintable(log + "reading"));
        report.setFolder("x");
        QCOMPARE(report.getSetting("reportName")->getValue().toString() + report.getSuffixForReport(), QString("of none.xml"));
        // Nor a pipe without a writer.
        QVERIFY(QDir().rmdir(place) && ::mkfifo(place.toLocal8Bit().constData(), 0600) == 0);
        QTest::ignoreMessage(QtWarningMsg, qPrintable(log + "reading"));
        report.loadSettings();
        QVERIFY(QFile::remove(place));
        writeFile(place, json("{'reportName': 'ours'}"));
        report.loadSettings();
        // Settings that were read once may differ from the present ones.
        QVERIFY(QFile::remove(place) && QDir().mkpath(place));
        QTest::ignoreMessage(QtWarningMsg, qPrintable(log + "reading"));
        report.loadSettings();
        QVERIFY(QDir().rmdir(place));
        writeFile(place, theirs + QByteArray(uiutils::largestReportSettings, ' '));
        QTest::ignoreMessage(QtWarningMsg, qPrintable(log + "writing"));
        report.saveSettings();
        QVERIFY(contentsOf(place).startsWith(theirs));
        writeFile(place, theirs);
        report.getSetting("reportName")->setValue("mine");
        report.saveSettings();
        QCOMPARE(stored("x"), QJsonObject({{"reportName", "mine"}, {"reportFormat", 1}, {"reportSync_SS", true}}));
    }
    void whoHearsOfAValueMayChangeTheFolder()
    {
        writeFile(settingsFile("a"), json("{'reportFormat': 1, 'reportName': 'of a', 'reportSync_SS': true}"));
        writeFile(settingsFile("b"), json("{'reportName': 'of b'}"));
        Controller report;
        report.loadSettings();
        connect(report.getSetting("reportFormat"), &KivData::valueChanged, &report, [&] { report.setFolder("b"); });
        report.setFolder("a");
        QCOMPARE(report.getSetting("reportName")->getValue(), QVariant("of b"));
        QCOMPARE(report.getSetting("reportSync_SS")->getValue().toBool(), false);
    }

    void storedSettings()
    {
        const QString none = " 0 7";
        const QString parse = "ERROR: Could not parse Json text:\n";
        const std::tuple<QByteArray, const char*, QString> rows[]{{"", "illegal value", none},
                {json("{'reportName': 'a"), "unterminated string", none}, {"[1]", "the file holds no object", none},
                {QByteArray(uiutils::largestReportSettings + 1, ' '), "the file is too large", none},
                {json("{'reportName': {}, 'reportFormat': '1', 'reportSync_SS': 7, 'own': 'many'}"), nullptr, none},
                {json("{'reportName': '../x', 'reportFormat': 99, 'own': 11}"), nullptr, none},
                {json("{'reportFormat': 2, 'own': null}"), nullptr, none},
                {json("{'reportFormat': 1.5, 'x': 1, 'reportName': 'ok'}"), nullptr, "ok 0 7"},
                {json("{'reportFormat': 1, 'own': 9}"), nullptr, " 1 9"}};
        for (const auto& [contents, problem, values] : rows) {
            Controller report;
            auto* own = new UiData;
            own->setAttributes({{"name", "own"}, {"type", UiData::TYPE_INT}, {"minRange", 0}, {"maxRange", 10}});
            own->setValue(7);
            report.addSetting(own);
            writeFile(settingsFile(""), contents);
            if (problem)
                QTest::ignoreMessage(QtWarningMsg, qPrintable(parse + problem));
            report.loadSettings();
            const QString found = QString("%1 %2 %3").arg(report.getSetting("reportName")->getValue().toString())
                                          .arg(report.getFormat()).arg(own->getValue().toString());
            QVERIFY2(found == values, contents.left(80) + " gives " + found.toUtf8());
            QCOMPARE(report.getSetting("reportSync_SS")->getValue().toBool(), false);
        }
    }
};

QTEST_MAIN(ReportTest)

#include "tst_report.moc"
