#include "pagesfixture.h"

class PagesFilesTest : public PagesFixture
{
    Q_OBJECT

private Q_SLOTS:
    /// Every file that a save of all formats would overwrite is named, and the answers are verbs.
    void reportIsSaved()
    {
        measure();
        open("report");
        m_report->getSetting("reportFormat")->setValue(int(NSReport::REPORT_FORMAT_ALL));
        press("saveButton");
        QTRY_COMPARE(reports().size(), 5);
        const QByteArray before = contentsOf(reports().constFirst());
        for (const char* answer : {"rejectButton", "acceptButton"}) {
            QTRY_VERIFY(!m_report->isSaving());
            press("saveButton");
            QTRY_VERIFY(notifications()->currentDialog());
            for (const QString& file : reports())
                QVERIFY2(isShownPart(QFileInfo(file).fileName()), qPrintable(file));
            QCOMPARE(shownTimes("Keep"), 1);
            QCOMPARE(shownTimes("Overwrite"), 1);
            m_report->getSetting("reportTitle")->setValue("Another title");
            // Keys and touches that arrive at once may have been meant for the page.
            QTRY_VERIFY((tap(answer), !notifications()->currentDialog()));
        }
        QTRY_VERIFY(contentsOf(reports().constFirst()) != before);
    }

    /// Record, sync, copy and deletion of one of the files.
    void filesOfTheUnit()
    {
        measure();
        QVERIFY(m_report->save());
        UsbStick* const stick = m_window->findChild<UsbStick*>();
        QVERIFY(stick && stick->plug());
        open("files");
        press("fileList/#0");
        QTRY_VERIFY(isShown("Record"));
        const QString list = m_root.filePath("cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt");
        const bool wasSynced = !contentsOf(list).contains("loopback_");
        press("syncButton");
        QTRY_COMPARE(contentsOf(list).contains("loopback_"), wasSynced);
        press("copyButton");
        QTRY_COMPARE(namesIn(m_root.filePath("mnt/usb")).size(), 1);
        press("deleteButton");
        QTRY_VERIFY(notifications()->currentDialog());
        QTRY_VERIFY((tap("acceptButton"), !notifications()->currentDialog()));
        QTRY_VERIFY(reports().isEmpty() && isShown("Nothing is saved yet"));
        press("filesKind/#1");
        QTRY_COMPARE(find("fileList")->property("count").toInt(), 1);
    }

    void screenshotsHaveNamesOfTheirOwn()
    {
        const QString name("screenshot_20260131-142500");
        QCOMPARE(ScreenCamera::freeBaseName("20260131-142500"), name);
        for (const char* taken : {".png", "_2.png"})
            put("/cust/public/screenshots/" + name + taken, "a picture");
        QCOMPARE(ScreenCamera::freeBaseName("20260131-142500"), name + "_3");
    }

    /// With its dialogs, under a name of its own, and with one notification; each is among the files.
    void screenshots()
    {
        const QString folder = m_root.filePath("cust/public/screenshots");
        put("/cust/public/screenshots", "no folder");
        QTest::keyClick(m_window, Qt::Key_P, Qt::ControlModifier);
        QTRY_VERIFY(notifications()->currentDialog());
        QCOMPARE(notifications()->currentDialog()->longLabel(), QString("Write Error"));
        QCOMPARE(notifications()->count(), 1);
        QVERIFY(QFile::remove(folder));
        waitForFrame();
        for (int taken = 1; taken <= 2; ++taken) {
            QTest::keyClick(m_window, Qt::Key_Print);
            QTRY_COMPARE(notifications()->count(), 1 + taken);
        }
        QCOMPARE(namesIn(folder).size(), 2);
        for (const QString& name : namesIn(folder)) {
            // The page below the open dialog is dimmed.
            QVERIFY(QImage(folder + '/' + name).pixelColor(2, 300).lightness() < 200);
            QVERIFY(QFile::exists(m_root.filePath("cust/private/screenshots/metadata/" + name + ".metadata")));
        }
        QTRY_VERIFY((QTest::keyClick(m_window, Qt::Key_Escape), !notifications()->currentDialog()));
        open("files");
        press("filesKind/#2");
        press("pictureList/#0");
        press("deletePictureButton");
        QTRY_VERIFY((tap("acceptButton"), !notifications()->currentDialog()));
        QTRY_COMPARE(namesIn(folder).size(), 1);
        QCOMPARE(namesIn(m_root.filePath("cust/private/screenshots/metadata")).size(), 1);
    }

    /// The report comes first, then the error.
    void windowClosesOnceSaved()
    {
        measure();
        connect(m_report, &Report::savingChanged, this, [this] {
            if (m_report->isSaving())
                QVERIFY(!m_window->close());
        });
        for (const bool isWritten : {false, true}) {
            QDir(m_root.filePath("cust/public")).removeRecursively();
            if (!isWritten)
                put("/cust/public/reports", "no folder");
            QCOMPARE(m_report->save(), isWritten);
            QVERIFY(m_window->isVisible());
            QCoreApplication::processEvents();
            QTRY_COMPARE(m_window->isVisible(), !isWritten);
            notifications()->reject();
            QVERIFY(isWritten || QFile::remove(m_root.filePath("cust/public/reports")));
        }
    }
};

QTEST_MAIN(PagesFilesTest)
#include "tst_pagesfiles.moc"
