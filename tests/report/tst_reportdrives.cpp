#include "reportfixture.h"

/// Saving on drives: full ones, and USB drives that are plugged in and out.
class ReportDrivesTest : public ReportFixture
{
    Q_OBJECT

private Q_SLOTS:
    void fullDrivesAreReportedBeforehand()
    {
        const QByteArray stick = QFile::encodeName(onDisk("/mnt/usb"));
        QVERIFY(QDir().mkpath(onDisk("/mnt/usb")));
        if (::mount("none", stick.constData(), "tmpfs", 0, "size=256k") != 0)
            QSKIP("Only those who may mount a drive can fill one.");
        const auto unmount = qScopeGuard([&] { ::umount2(stick.constData(), MNT_DETACH); });
        writeFile(onDisk("/mnt/usb/half"), QByteArray(128 * 1024, 'x'));
        Controller report("a", 3);
        const double used = report.percentageFileSystemUsed("/mnt/usb/not/there");
        QVERIFY2(used > 49 && used < 55, qPrintable(QString::number(used)));
        for (int location : {1, 2}) {
            plug(location);
            QVERIFY(!report.save() && !report.save());
            QCOMPARE(dialogTitle(), QString("Not Enough Space"));
            QCOMPARE(manager()->waitingDialogs(), 0);
            QCOMPARE(report.calls.constLast(), QString("failed"));
            QVERIFY(!QFile::exists(onDisk("/cust/public/reports/a.txt")) && names("/mnt/usb").size() == 1);
            // Without a USB drive nothing is written there.
            plug(location, false);
            QVERIFY(report.save());
            QVERIFY(QFile::remove(onDisk("/cust/public/reports/a.txt")));
        }
    }

    void sticks_data()
    {
        addColumns<int, bool, bool, QStringList, QStringList, bool>();
        const QStringList files{"a.txt.gz", "a.xml.gz"};
        const QStringList recorded{"a.txt.gz", "a.txt.gz.metadata", "a.xml.gz", "a.xml.gz.metadata"};
        const QStringList none;
        QTest::newRow("internal") << 0 << true << true << files << none << true;
        QTest::newRow("stick") << 1 << true << true << none << recorded << true;
        QTest::newRow("no stick") << 1 << false << false << files << none << true;
        QTest::newRow("not told yet") << 1 << false << true << files << none << true;
        QTest::newRow("vanished") << 1 << true << false << none << none << false;
        QTest::newRow("both") << 2 << true << true << files << files << true;
        QTest::newRow("both, no stick") << 2 << false << false << files << none << true;
        QTest::newRow("both, vanished") << 2 << true << false << files << none << false;
    }
    void sticks()
    {
        const auto [location, isAnnounced, isMounted, internal, stick, isSaved]
                = currentRow<int, bool, bool, QStringList, QStringList, bool>();
        plug(location, isAnnounced, isMounted);
        Controller report("a", 5);
        for (int format : {0, 2, 4})
            report.setFormatApplicable(format, false);
        report.setCompressionEnabled(true);
        QSignalSpy generated(&report, &Report::reportGenerated);
        QCOMPARE(report.save(), isSaved);
        QCOMPARE(generated.count(), isSaved ? 1 : 0);
        QCOMPARE(names("/cust/public/reports"), internal);
        QCOMPARE(names("/mnt/usb"), stick);
        QCOMPARE(manager()->currentDialog() == nullptr, isSaved);
        // Two files that cannot be written are one failure.
        QCOMPARE(manager()->waitingDialogs(), 0);
        int errors = 0;
        for (int i = 0; i < manager()->count(); ++i)
            errors += manager()->data(manager()->index(i), KIVNotificationModelManager::LongLabelRole) == "Write Error";
        QCOMPARE(errors, isSaved ? 0 : 1);
        // Files on the USB drive are part of the question.
        QVERIFY(!report.save() || !isSaved);
        if (location == 2 && isSaved && !names("/mnt/usb").isEmpty()) {
            // A twin in another form is removed together with the file that may be overwritten.
            writeFile(onDisk("/mnt/usb/a.txt"), "plain");
            QVERIFY(report.save(true));
            QCOMPARE(names("/mnt/usb"), stick);
            manager()->reject();
            QVERIFY(QDir(onDisk("/cust/public/reports")).removeRecursively());
            QVERIFY(!report.save());
            QVERIFY(dialogText().contains("USB:/a.xml"));
        }
    }
    void anAgreementHoldsForItsPlaceAlone()
    {
        writeFile(onDisk("/mnt/usb/a.txt"), "old");
        writeFile(onDisk("/cust/public/reports/a.txt"), "precious");
        plug(1);
        Controller report("a", 3);
        QVERIFY(!report.save());
        report.saveOnYes();
        plug(1, false, false);
        manager()->accept();
        QCOMPARE(report.answers, QVector<bool>{false});
        QCOMPARE(dialogTitle(), QString("Write Error"));
        QCOMPARE(contentsOf(onDisk("/cust/public/reports/a.txt")), QByteArray("precious"));
        QCOMPARE(contentsOf(onDisk("/mnt/usb/a.txt")), QByteArray("old"));
        // Another save asks another question.
        QVERIFY(!report.save());
        QVERIFY(manager()->currentDialog());
    }

    void anAgreementHoldsForItsNameAlone()
    {
        Controller report;
        for (const char* name : {"a", "b"}) {
            report.setUp(name, 3);
            report.text = name;
            QVERIFY(report.save());
        }
        report.setUp("a", 3);
        QVERIFY(!report.save());
        report.getSetting("reportName")->setValue("b");
        report.saveOnYes();
        report.text = "new";
        manager()->accept();
        QCOMPARE(report.answers, QVector<bool>{false});
        QCOMPARE(contentsOf(onDisk("/cust/public/reports/b.txt")), QByteArray("b"));
        QVERIFY(dialogText().contains("b.txt"));
        manager()->accept();
        QCOMPARE(report.answers, QVector<bool>({false, true}));
        QCOMPARE(contentsOf(onDisk("/cust/public/reports/b.txt")), QByteArray("new"));
        // The question of a writer that is called directly does not cover the files of a save.
        QVERIFY(!report.writeTxtReport("/cust/public/reports/a.txt"));
        report.text = "newer";
        manager()->accept();
        QCOMPARE(report.answers, QVector<bool>({false, true, false}));
        QCOMPARE(contentsOf(onDisk("/cust/public/reports/b.txt")), QByteArray("new"));
        // When that writer has its answer, a save that overwrites without a question does so again.
        report.disconnect(&report);
        QVERIFY(!report.writeTxtReport("/cust/public/reports/a.txt"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(dialogText().contains("a.txt"));
        manager()->accept();
        QVERIFY(report.writeTxtReport("/cust/public/reports/a.txt", true));
        QVERIFY(report.save(true));
        QCOMPARE(contentsOf(onDisk("/cust/public/reports/b.txt")), QByteArray("newer"));
    }
    void aSaveContinuesWhereItBegan()
    {
        writeFile(onDisk("/cust/public/reports/f/a.xml"), "old");
        writeFile(onDisk("/cust/public/reports/g/a.txt"), "precious");
        Controller report("a", 5);
        report.setFolder("f");
        QVERIFY(!report.save());
        report.saveOnYes();
        connect(&report, &Report::lastSavedXMLChanged, &report, [&] { report.setFolder("g"); });
        manager()->accept();
        QCOMPARE(report.answers, QVector<bool>{true});
        QVERIFY(contentsOf(onDisk("/cust/public/reports/f/a.xml")).startsWith("<?xml"));
        QVERIFY(QFile::exists(onDisk("/cust/public/reports/f/a.txt")));
        QCOMPARE(contentsOf(onDisk("/cust/public/reports/g/a.txt")), QByteArray("precious"));
    }
    void whatIsCopiedIsWhatWasSaved()
    {
        writeFile(onDisk("/cust/public/reports/g/a.txt"), "another");
        plug(2);
        Controller report("a", 3);
        report.text = "new";
        connect(&report, &Report::progressChanged, &report, [&] { report.setFolder("g"); });
        QVERIFY(report.save());
        QCOMPARE(contentsOf(onDisk("/mnt/usb/a.txt")), QByteArray("new"));
    }
    void lateDrivesAreAskedAbout_data()
    {
        addColumns<int, QString>();
        for (const char* name : {"a.pdf", "a.txt"})
            QTest::newRow(name) << 1 << name;
        QTest::newRow("copy") << 2 << "a.txt";
    }
    void lateDrivesAreAskedAbout()
    {
        const auto [location, name] = currentRow<int, QString>();
        writeFile(onDisk("/mnt/port/" + name), "precious");
        plug(location, true, false);
        Controller report("a", name == "a.pdf" ? 0 : 3);
        report.text = "%PDF-";
        report.meanwhile = [&] {
            QDir().rename(onDisk("/mnt/usb"), onDisk("/mnt/point"));
            QDir().rename(onDisk("/mnt/port"), onDisk("/mnt/usb"));
            basemgr()->setMounted("/mnt/usb", true);
        };
        QSignalSpy generated(&report, &Report::reportGenerated);
        QVERIFY(!report.save());
        QCOMPARE(contentsOf(onDisk("/mnt/usb/" + name)), QByteArray("precious"));
        QCOMPARE(dialogText(), "Do you want to overwrite report USB:/" + name + "?");
        QCOMPARE(manager()->waitingDialogs(), 0);
        QCOMPARE(generated.count(), 0);
        report.meanwhile = nullptr;
        report.saveOnYes();
        manager()->accept();
        QCOMPARE(report.answers, QVector<bool>{true});
        QCOMPARE(contentsOf(onDisk("/mnt/usb/" + name)), QByteArray("%PDF-"));
    }
    void theLocationIsThatOfTheNextSave()
    {
        QVERIFY(basemgr()->setValue(locationItem, 1));
        Controller report("a", 3);
        QStringList shown;
        connect(&report, &Report::saveLocationChanged, &report, [&] { shown << report.getSaveLocation(); });
        report.meanwhile = [&] { basemgr()->setValue(usbItem, true); };
        QVERIFY(report.save());
        QCOMPARE(names("/cust/public/reports"), QStringList("a.txt"));
        QTRY_VERIFY(!shown.isEmpty());
        QCOMPARE(shown.constLast(), QString("USB:/"));
    }
    void nothingIsWrittenWhereADriveWas()
    {
        plug(1);
        Controller report("a", 3);
        connect(&report, &Report::reportFilesChanged, &report, [&] { basemgr()->setMounted("/mnt/usb", false); });
        QVERIFY(report.save());
        QCOMPARE(names("/mnt/usb"), QStringList("a.txt"));
    }
    void foldersOnDrivesAreCreated()
    {
        QVERIFY(basemgr()->setMounted("/mnt/usb", true));
        QVERIFY(QDir().mkpath(onDisk("/mnt/usb")));
        Controller report("a", 3);
        report.setBaseDirectory("/mnt/usb/sites");
        report.setFolder("f");
        QVERIFY(report.save());
        QVERIFY(names("/mnt/usb/sites/f").contains("a.txt"));
        QVERIFY(basemgr()->setMounted("/mnt/usb", false));
        report.setFolder("g");
        QVERIFY(!report.save());
        QCOMPARE(names("/mnt/usb/sites"), QStringList("f"));
        // A report that is saved to the USB drive is its own copy.
        report.setFolder("");
        report.setBaseDirectory("/mnt/usb");
        plug(2);
        QVERIFY(report.save());
    }
};

QTEST_MAIN(ReportDrivesTest)

#include "tst_reportdrives.moc"
