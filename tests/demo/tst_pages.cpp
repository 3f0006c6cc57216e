#include "pagesfixture.h"

class PagesTest : public PagesFixture
{
    Q_OBJECT

private Q_SLOTS:
    /// Each page comes without a warning, with and without services, and is kept.
    void everyPage_data()
    {
        addColumns<bool, QSize>();
        QTest::newRow("with services") << true << QSize(1024, 600);
        QTest::newRow("small, dark, Arabic") << true << QSize(800, 480);
        QTest::newRow("without services") << false << QSize(1024, 600);
    }

    void everyPage()
    {
        const auto [hasServices, size] = currentRow<bool, QSize>();
        if (!hasServices) {
            endProgram();
            m_serviceFolders.clear();
            startProgram();
            m_serviceFolders = QStringList(shippedServices);
        }
        m_window->resize(size);
        if (size.height() < 600) {
            setServed(":config:unit:display:theme:", 1);
            setServed(":config:unit:display:language:", "ar");
            QTRY_COMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
        }
        const QStringList names = m_window->property("pageNames").toStringList();
        QVERIFY(names.size() >= 12);
        for (const QString& name : names) {
            if (!hasServices && name == "gallery")
                continue;
            QQuickItem* const page = open(name);
            QVERIFY2(page && page->isVisible(), qPrintable(name));
            QCOMPARE(open(name), page);
            waitForFrame();
        }
        QTRY_COMPARE(m_window->color().lightness() < 100, size.height() < 600);
        if (size.height() < 600) {
            setServed(":config:unit:display:language:", "en");
            QTRY_COMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
        }
    }

    /// Recent first, found by words; customer, work order and job manager agree afterwards.
    void jobIsChosen()
    {
        press("jobsButton");
        QCOMPARE(rowsOf("jobList").value(0), QString("WO-88213, Fjordside Clinic"));
        QCOMPARE(rowsOf("jobList").size(), 5);
        press("jobKind/#1");
        QCOMPARE(find("jobList")->property("count").toInt(), 10);
        press("jobSearch/searchField");
        m_touch->type("museum");
        QVERIFY(rowsOf("jobList").isEmpty());
        m_touch->type("LIBRARY 1g");
        QCOMPARE(rowsOf("jobList"), QStringList("WO-88102, Municipal Library"));
        press("job WO-88102");
        QCOMPARE(served(jobId), QVariant("WO-88102"));
        QCOMPARE(served(":result:basemgr:jobmanager:jobBAN:"), QVariant("700 115 640"));
        QCOMPARE(served(":result:basemgr:jobmanager:jobTechnician:"), QVariant("Ines Halvorsen"));
        QCOMPARE(served(address), QVariant("15 Market Square"));
        QCOMPARE(served(workOrder), QVariant("WO-88102"));
        QVERIFY(isShown("Municipal Library"));
        QVERIFY(find("jobItem"));
    }

    /// Nothing is changed, and the page says why; afterwards everything can be changed again.
    void jobIsRefused()
    {
        service(address)->setRefusal(address, "The office has locked the address.");
        open("jobs");
        press("job WO-88217");
        QTRY_VERIFY(isShownPart("The office has locked the address."));
        QCOMPARE(served(jobId), QVariant("WO-88213"));
        QCOMPARE(served(":config:basemgr:system:customerInfo_name:"), QVariant("Fjordside Clinic"));
        QCOMPARE(served(workOrder), QVariant("WO-88213"));
        service(address)->setRefusal(address, QString());

        // A set-up that waits would be applied with the job.
        open("setup");
        press("maximumRtt/moreButton");
        open("jobs");
        press("job WO-88217");
        QCOMPARE(served(jobId), QVariant("WO-88213"));
        QVERIFY(isShownPart("Apply or revert the set-up first"));
        open("setup");
        press("revertButton");
        open("jobs");
        press("job WO-88217");
        QCOMPARE(served(jobId), QVariant("WO-88217"));
        QCOMPARE(served(roundTripLimit), QVariant(1.0));
    }

    /// Held back until it is applied after a review; what is reverted, refused or reported meanwhile is no change.
    void setupIsReviewed()
    {
        open("setup");
        QVERIFY(isOff("reviewButton"));
        for (int i = 0; i < 2; ++i)
            press("maximumRtt/moreButton");
        press("rttSamples/moreButton");
        QCOMPARE(served(roundTripLimit), QVariant(1.0));
        press("reviewButton");
        QTRY_VERIFY(isShown("1.000 ms") && isShown("3.000 ms") && isShown("40") && isShown("50"));
        press("revert Maximum Round-Trip Time");
        QTRY_VERIFY(!isShown("3.000 ms") && isShown("40") && isShown("50"));
        press("revertAllButton");
        QTRY_VERIFY(isOff("reviewButton"));

        press("maximumRtt/moreButton");
        press("rttSamples/moreButton");
        service(roundTripLimit)->setValue(roundTripLimit, 5);
        QTRY_VERIFY(isShownPart("1 change"));
        service(roundTripSamples)->setRefusal(roundTripSamples, "The samples are fixed.");
        press("reviewButton");
        press("applyButton");
        QTRY_VERIFY(isShownPart("The samples are fixed."));
        QCOMPARE(served(roundTripSamples), QVariant(40u));
        service(roundTripSamples)->setRefusal(roundTripSamples, QString());
        press("applyButton");
        QCOMPARE(served(roundTripSamples), QVariant(50u));
        QCOMPARE(served(roundTripLimit), QVariant(5.0));
        // What the service has changed meanwhile is to be looked at, and may be set again.
        QTRY_VERIFY(isShown("Now: 5.000 ms") && isShown("You have set: 2.000 ms") && isOff("applyButton"));
        press("setAgain Maximum Round-Trip Time");
        QTRY_VERIFY(isShown("5.000 ms") && isShown("2.000 ms"));
        QCOMPARE(served(roundTripLimit), QVariant(5.0));
        service(roundTripLimit)->setValue(roundTripLimit, 6);
        QTRY_VERIFY(isShown("Now: 6.000 ms"));
        press("dismiss Maximum Round-Trip Time");
        QTRY_VERIFY(isShown("Nothing waits"));
        open("setup");
        QTRY_VERIFY(isOff("reviewButton"));
    }

    /// A run that fails says why; a figure that fails does so by word and colour, and is among the failures.
    void resultsAreJudged()
    {
        open("run");
        failToMeasure();
        QVERIFY(isShown(m_measurement->errorText()));
        m_measurement->setServerPort(0);
        m_measurement->setPatience(longWait);
        press("startButton");
        QVERIFY(m_measurement->isRunning());
        press("startButton");
        QCOMPARE(m_measurement->state(), LoopbackMeasurement::Cancelled);
        measure();
        m_measurement->roundTrip()->setLimit(0);
        waitForFrame();
        QCOMPARE(shownTimes("Fail"), 2);
        press("results");
        const int count = m_measurement->roundTrip()->count();
        QCOMPARE(find("sampleList")->property("count").toInt(), count);
        press("failuresChoice/#1");
        QCOMPARE(find("sampleList")->property("count").toInt(), count);
        press("orderChoice/#2");
        QCOMPARE(rowsOf("sampleList", "value").constFirst(), m_measurement->roundTrip()->text(m_measurement->roundTrip()->maximum()));
        m_measurement->roundTrip()->setLimit(m_measurement->roundTrip()->median());
        QVERIFY(find("sampleList")->property("count").toInt() <= count / 2);
        press("quantityChoice/#1");
        m_measurement->throughput()->setLimit(0);
        QTRY_VERIFY(isShown("Nothing failed"));
    }

    /// All with keys: tabs, a page over another and back, a run.
    void keyboardReachesEverything()
    {
        QTest::keyClick(m_window, Qt::Key_3, Qt::ControlModifier);
        focus("startButton");
        QTest::keyClick(m_window, Qt::Key_Space);
        QVERIFY(m_measurement->isRunning());
        QCoreApplication::processEvents();
        QTest::keyClick(m_window, Qt::Key_Return);
        QCOMPARE(m_measurement->state(), LoopbackMeasurement::Cancelled);
        QTest::keyClick(m_window, Qt::Key_1, Qt::ControlModifier);
        focus("peopleButton");
        QTest::keyClick(m_window, Qt::Key_Return);
        QVERIFY(find("peopleTabs"));
        QTest::keyClick(m_window, Qt::Key_Escape);
        QVERIFY(find("peopleButton"));
    }

    /// The choice that is made remains to be seen when it is made again.
    void chosenTwice()
    {
        open("settings");
        for (int i = 0; i < 3; ++i) {
            press("themeChoice/#1");
            QTRY_VERIFY(m_touch->find("themeChoice/#1")->property("checked").toBool());
        }
        QCOMPARE(served(":config:unit:display:theme:"), QVariant(1));
    }
};

QTEST_MAIN(PagesTest)
#include "tst_pages.moc"
