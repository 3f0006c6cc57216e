#include "pagesfixture.h"

#include <QPointer>

class PagesTroubleTest : public PagesFixture
{
    Q_OBJECT

private Q_SLOTS:
    /// Results that are not saved are offered at the next start, and are the same, with their job; saved ones are not
    /// offered.
    void draftSurvives()
    {
        open("jobs");
        press("job WO-88217");
        measure();
        const QVariantMap results = m_measurement->results();
        for (const bool isSaved : {false, true}) {
            endProgram();
            startProgram();
            QTRY_VERIFY(find("discardButton"));
            press("nextButton");
            QCOMPARE(m_measurement->results(), results);
            QCOMPARE(served(jobId), QVariant("WO-88217"));
            QCOMPARE(served(":result:basemgr:jobmanager:jobBAN:"), QVariant("700 118 301"));
            QVERIFY(!find("discardButton"));
            if (isSaved)
                QVERIFY(m_report->save());
        }
        endProgram();
        startProgram();
        waitForFrame();
        QVERIFY(!find("discardButton"));
    }

    /// The run goes on without them, and its report is saved.
    void servicesVanishDuringARun()
    {
        open("run");
        press("startButton");
        setAllReachable(false);
        QTRY_COMPARE_WITH_TIMEOUT(m_measurement->state(), LoopbackMeasurement::Finished, longWait);
        QVERIFY(m_measurement->roundTrip()->count() > 0 && !m_measurement->results().isEmpty());
        open("report");
        press("saveButton");
        QTRY_COMPARE(reports().size(), 1);
        setAllReachable(true);
        QTRY_VERIFY(isShownPart("Saved in"));
    }

    void languageChangesDuringARun()
    {
        open("run");
        press("startButton");
        setServed(":config:unit:display:language:", "de");
        QTRY_VERIFY(isShown("Umlaufzeit"));
        QTRY_COMPARE_WITH_TIMEOUT(m_measurement->state(), LoopbackMeasurement::Finished, longWait);
        QTRY_VERIFY(isShown("Fertig"));
        m_report->getSetting("reportFormat")->setValue(int(NSReport::REPORT_FORMAT_TEXT));
        QVERIFY(m_report->save());
        const QByteArray text = contentsOf(reports().constFirst());
        QVERIFY2(text.contains("Umlaufzeit") && !text.contains("Round-trip"), text);
        setServed(":config:unit:display:language:", "en");
        QTRY_VERIFY(isShown("Round-trip time"));
    }

    /// The save goes on, and what follows has no job.
    void jobIsClosedDuringASave()
    {
        measure();
        m_report->getSetting("reportFormat")->setValue(int(NSReport::REPORT_FORMAT_ALL));
        connect(m_report, &Report::progressChanged, this, [this] {
            QString reply;
            if (m_report->isSaving() && !reports().isEmpty())
                QVERIFY(KIVClientInterface::getSessionBusClient("basemgr")->sendAction(":action:basemgr:jobmanager:closeJob:", "", &reply, 500));
        });
        QVERIFY(m_report->save());
        QCOMPARE(reports().size(), 5);
        QTRY_VERIFY(!isShown("WO-88213"));
    }

    /// What bounces off a glove neither stops a run nor asks about a report that was just saved.
    void secondTapsAreIgnored()
    {
        QStyleHints* const hints = QGuiApplication::styleHints();
        hints->setMouseDoubleClickInterval(longWait);
        open("run");
        press("startButton");
        press("startButton");
        QVERIFY(m_measurement->isRunning());
        hints->setMouseDoubleClickInterval(0);
        QTRY_VERIFY((tap("startButton"), m_measurement->state() == LoopbackMeasurement::Cancelled));
        measure();
        hints->setMouseDoubleClickInterval(longWait);
        open("report");
        press("saveButton");
        QTRY_VERIFY(!m_report->isSaving() && reports().size() == 1);
        QVERIFY(!tap("saveButton") && !notifications()->currentDialog());
        hints->setMouseDoubleClickInterval(0);
        QTRY_VERIFY((tap("saveButton"), notifications()->currentDialog()));
    }

    /// What comes and goes by itself moves nothing that a user may be about to press.
    void nothingMoves()
    {
        UsbStick* const stick = m_window->findChild<UsbStick*>();
        for (const char* name : {"home", "setup", "report", "files", "people", "jobs"}) {
            open(name);
            waitForFrame();
            const QMap<QQuickItem*, QRectF> before = places();
            const QVector<QPointer<QQuickItem>> items(before.keyBegin(), before.keyEnd());
            QVERIFY(before.size() > 5);
            QVERIFY(stick->plug());
            setAllReachable(false);
            waitForFrame();
            const QMap<QQuickItem*, QRectF> during = places();
            // The rows of a service that is away are gone.
            for (const QPointer<QQuickItem>& item : items) {
                if (item && during.contains(item))
                    QVERIFY2(during[item] == before[item], qPrintable(QString(name) + ' ' + item->objectName()));
            }
            setAllReachable(true);
            QVERIFY(stick->pull());
        }
    }

    /// Writes fail while the disk is full, and the results are not lost.
    void deskDrawer()
    {
        measure();
        open("files");
        QTest::keyClick(m_window, Qt::Key_D, Qt::ControlModifier);
        press("diskButton");
        QVERIFY(!m_report->save());
        QTRY_VERIFY(notifications()->currentDialog());
        QCOMPARE(notifications()->currentDialog()->longLabel(), QString("Not Enough Space"));
        notifications()->reject();
        // The free space agrees, on the page behind the drawer, too.
        QCOMPARE(m_report->percentageFileSystemUsed(), 100.0);
        QTest::keyClick(m_window, Qt::Key_D, Qt::ControlModifier);
        QTRY_VERIFY(isShownPart("100 % of the drive in use"));
        QVERIFY(reports().isEmpty());
        QTest::keyClick(m_window, Qt::Key_D, Qt::ControlModifier);
        press("diskButton");
        QVERIFY(m_report->percentageFileSystemUsed() < 100);
        QVERIFY(m_report->save());
        QVERIFY(!isShownPart("100 % of the drive in use"));
        press("away loopback");
        QVERIFY(!m_services->service("loopback")->isReachable());
        press("away loopback");
        QVERIFY(m_services->service("loopback")->isReachable());
        press("batteryButton");
        QCOMPARE(served(":result:unit:power:batteryLevel:"), QVariant(9u));
        press("linkButton");
        QCOMPARE(served(":result:unit:link:linkUp:"), QVariant(false));
    }
};

QTEST_MAIN(PagesTroubleTest)
#include "tst_pagestrouble.moc"
