#include "columns.h"
#include "files.h"

#include "demotypes.h"
#include "loopbackmeasurement.h"
#include "loopbackreport.h"
#include "measurementsettings.h"
#include "qmlwarnings.h"
#include "report/nsreport.h"
#include "screencamera.h"
#include "service/kivdata.h"
#include "touch.h"
#include "ui_host/host.h"
#include "usbstick.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>
#include <kiv/kivnotificationmodelmanager.h>

#include <QPointer>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTcpServer>

#include <functional>
#include <memory>

using namespace uiutils::demo;

namespace {

constexpr int longWait = 60000;

const char* const lastName = ":config:basemgr:system:userInfo_lastName:";
const char* const address = ":config:basemgr:system:customerInfo_address:";
const char* const jobId = ":result:basemgr:jobmanager:jobID:";
const char* const workOrder = ":config:workflow_manager_app:workflow_manager_reg_module:activeWorkOrderId:";
const char* const roundTripLimit = ":config:loopback:limits:maximumRtt:";
const char* const roundTripSamples = ":config:loopback:test:rttSamples:";

QList<QQuickItem*> itemsBelow(const QQuickItem* item)
{
    QList<QQuickItem*> items = item->childItems();
    const QList<QQuickItem*> children = items;
    for (const QQuickItem* child : children)
        items += itemsBelow(child);
    return items;
}

QString textOf(const QQuickItem* item)
{
    return item->property("text").toString();
}

KIVNotificationModelManager* notifications()
{
    return KIVNotificationModelManager::instance();
}

} // namespace

class PagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_root.isValid());
        qputenv("UIUTILS_ROOT", m_root.path().toLocal8Bit());
        QGuiApplication::setQuitOnLastWindowClosed(false);
        registerDemoTypes();
    }

    void init()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        m_settingsFolder = std::make_unique<QTemporaryDir>();
        QDir(m_root.filePath("cust")).removeRecursively();
        startProgram();
    }

    void cleanup()
    {
        if (m_window->findChild<UsbStick*>())
            QVERIFY(m_window->findChild<UsbStick*>()->pull());
        endProgram();
        notifications()->clear();
        QCOMPARE(m_warnings.take(), QStringList());
    }

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
        QTRY_VERIFY(isShown(QString::fromUtf8("1.000 ms \u2192 3.000 ms")) && isShown(QString::fromUtf8("40 \u2192 50")));
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

    /// Results that are not saved are offered at the next start, and are the same; saved ones are not offered.
    void draftSurvives()
    {
        measure();
        const QVariantMap results = m_measurement->results();
        for (const bool isSaved : {false, true}) {
            endProgram();
            startProgram();
            QTRY_VERIFY(find("discardButton"));
            press("nextButton");
            QCOMPARE(m_measurement->results(), results);
            QVERIFY(!find("discardButton"));
            if (isSaved)
                QVERIFY(m_report->save());
        }
        endProgram();
        startProgram();
        waitForFrame();
        QVERIFY(!find("discardButton"));
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
            for (const char* service : {"basemgr", "loopback", "jobs", "unit"})
                m_services->service(service)->setReachable(false);
            waitForFrame();
            const QMap<QQuickItem*, QRectF> during = places();
            // The rows of a service that is away are gone.
            for (const QPointer<QQuickItem>& item : items) {
                if (item && during.contains(item))
                    QVERIFY2(during[item] == before[item], qPrintable(QString(name) + ' ' + item->objectName()));
            }
            for (const char* service : {"basemgr", "loopback", "jobs", "unit"})
                m_services->service(service)->setReachable(true);
            QVERIFY(stick->pull());
        }
    }

    /// Writes fail while the disk is full, and the results are not lost.
    void deskDrawer()
    {
        measure();
        QTest::keyClick(m_window, Qt::Key_D, Qt::ControlModifier);
        press("diskButton");
        QVERIFY(!m_report->save());
        QTRY_VERIFY(notifications()->currentDialog());
        notifications()->reject();
        QVERIFY(reports().isEmpty());
        press("diskButton");
        QVERIFY(m_report->save());
        press("away loopback");
        QVERIFY(!m_services->service("loopback")->isReachable());
        press("away loopback");
        QVERIFY(m_services->service("loopback")->isReachable());
        press("batteryButton");
        QCOMPARE(served(":result:unit:power:batteryLevel:"), QVariant(9u));
        press("linkButton");
        QCOMPARE(served(":result:unit:link:linkUp:"), QVariant(false));
    }

    /// All with keys: tabs, a page over another and back, a run.
    void keyboardReachesEverything()
    {
        QTest::keyClick(m_window, Qt::Key_3, Qt::ControlModifier);
        focus("startButton");
        QTest::keyClick(m_window, Qt::Key_Space);
        QVERIFY(m_measurement->isRunning());
        QTest::keyClick(m_window, Qt::Key_Return);
        QCOMPARE(m_measurement->state(), LoopbackMeasurement::Cancelled);
        QTest::keyClick(m_window, Qt::Key_1, Qt::ControlModifier);
        focus("peopleButton");
        QTest::keyClick(m_window, Qt::Key_Return);
        QVERIFY(find("peopleTabs"));
        QTest::keyClick(m_window, Qt::Key_Escape);
        QVERIFY(find("peopleButton"));
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

private:
    void startProgram()
    {
        m_services = std::make_unique<kiv::embedded::EmbeddedBackend>();
        m_services->setStateFolder(m_settingsFolder->path());
        QCOMPARE(m_services->loadFolders(m_serviceFolders), QStringList());
        m_measurement = std::make_unique<LoopbackMeasurement>();
        m_measurement->setPause(0);
        m_settings = std::make_unique<MeasurementSettings>(m_measurement.get(),
                KIVClientInterface::getSessionBusClient("loopback"), MeasurementSettings::KeepSampleCounts);
        m_host = std::make_unique<uiutils::Host>();
        const QStringList names = m_services->serviceNames();
        QVERIFY(names.isEmpty() || m_host->start({{}, {}, {}, names}));
        m_engine = std::make_unique<QQmlApplicationEngine>();
        m_warnings.take();
        m_warnings.watch(m_engine.get());
        m_host->showTo(m_engine.get());
        m_engine->setInitialProperties({{"measurement", QVariant::fromValue(m_measurement.get())}});
        m_engine->load(QUrl("qrc:/uiutils/demo/Main.qml"));
        QVERIFY(!m_engine->rootObjects().isEmpty());
        m_window = qobject_cast<QQuickWindow*>(m_engine->rootObjects().constFirst());
        QVERIFY(m_window);
        m_touch = std::make_unique<Touch>(m_window);
        m_report = m_window->property("report").value<LoopbackReport*>();
        QVERIFY(m_report);
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window, longWait));
        // What comes after the first frame.
        QTRY_VERIFY(m_window->findChild<QObject*>("deskDrawer"));
    }

    void endProgram()
    {
        m_engine.reset();
        m_host.reset();
        m_settings.reset();
        m_measurement.reset();
        m_services.reset();
    }

    /// Files of the instrument.
    void put(const QString& path, const QByteArray& contents) { writeFile(m_root.path() + path, contents); }
    QStringList reports() const
    {
        const QDir folder(m_root.filePath("cust/public/reports/loopback"));
        QStringList paths;
        for (const QString& name : folder.entryList(QDir::Files))
            paths += folder.filePath(name);
        return paths;
    }

    kiv::embedded::EmbeddedService* service(const QString& id) const
    {
        const QString name = id.section(':', 2, 2);
        return m_services->service(name == "workflow_manager_app" ? "orb.base." + name : name);
    }

    /// The service's value.
    QVariant served(const QString& id) const { return service(id)->item(id)->getValue(); }
    void setServed(const QString& id, const QVariant& value) { service(id)->setValue(id, value); }

    QQuickItem* open(const QString& name)
    {
        QVariant page;
        QMetaObject::invokeMethod(m_window, "open", Q_RETURN_ARG(QVariant, page), Q_ARG(QVariant, name));
        return page.value<QQuickItem*>();
    }

    /// What a user sees of that name, enabled or not.
    QQuickItem* find(const QString& name) const
    {
        QQuickItem* found = nullptr;
        for (QQuickItem* item : itemsBelow(m_window->contentItem())) {
            if (item->objectName() == name && item->isVisible())
                found = item;
        }
        return found;
    }

    bool isOff(const QString& name) const
    {
        const QQuickItem* const item = find(name);
        return item && !item->isEnabled();
    }

    bool tap(const QString& path)
    {
        QQuickItem* const item = m_touch->find(path);
        if (!item)
            return false;
        m_touch->press(item);
        m_touch->release();
        QCoreApplication::processEvents();
        return true;
    }

    void press(const QString& path)
    {
        // The macro looks once more after the success.
        bool isPressed = false;
        QTRY_VERIFY2_WITH_TIMEOUT(isPressed || (isPressed = tap(path)), qPrintable(path), longWait);
    }

    QStringList shownTexts() const
    {
        QStringList texts;
        for (const QQuickItem* item : itemsBelow(m_window->contentItem())) {
            if (item->isVisible() && item->inherits("QQuickText") && !textOf(item).isEmpty())
                texts += textOf(item);
        }
        return texts;
    }
    int shownTimes(const QString& words) const { return int(shownTexts().count(words)); }
    bool isShown(const QString& words) const { return shownTexts().contains(words); }
    bool isShownPart(const QString& words) const { return shownTexts().join('\n').contains(words); }

    /// The rows in sight of a list, from top to bottom.
    QStringList rowsOf(const QString& list, const char* property = "title") const
    {
        waitForFrame();
        QMap<qreal, QString> rows;
        for (const QQuickItem* item : itemsBelow(find(list))) {
            if (item->isVisible() && item->property("chevron").isValid())
                rows.insert(item->y(), item->property(property).toString());
        }
        return rows.values();
    }

    /// What can be pressed or read, outside of what lies over the page.
    QMap<QQuickItem*, QRectF> places() const
    {
        QMap<QQuickItem*, QRectF> places;
        for (QQuickItem* item : itemsBelow(m_window->contentItem())) {
            if (item->isVisible() && item->inherits("QQuickAbstractButton"))
                places.insert(item, item->mapRectToScene(QRectF(0, 0, item->width(), item->height())));
        }
        return places;
    }

    void focus(const QString& name)
    {
        for (int i = 0; i < 40 && !(m_window->activeFocusItem() && m_window->activeFocusItem()->objectName() == name); ++i)
            QTest::keyClick(m_window, Qt::Key_Tab);
        QCOMPARE(m_window->activeFocusItem()->objectName(), name);
    }

    void measure()
    {
        m_measurement->start();
        QTRY_COMPARE_WITH_TIMEOUT(m_measurement->state(), LoopbackMeasurement::Finished, longWait);
    }

    void failToMeasure()
    {
        QTcpServer silent;
        QVERIFY(silent.listen(QHostAddress::LocalHost));
        m_measurement->setServerPort(silent.serverPort());
        m_measurement->setPatience(50);
        m_measurement->start();
        QTRY_COMPARE_WITH_TIMEOUT(m_measurement->state(), LoopbackMeasurement::Failed, longWait);
    }

    /// Layouts are settled when the page has been drawn.
    void waitForFrame() const
    {
        QSignalSpy drawn(m_window, &QQuickWindow::frameSwapped);
        m_window->update();
        QVERIFY(drawn.wait(longWait));
    }

    const QString shippedServices = UIUTILS_SOURCE_DIR "/platform/reference/services";

    QTemporaryDir m_root;
    std::unique_ptr<QTemporaryDir> m_settingsFolder;
    QStringList m_serviceFolders {shippedServices};
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_services;
    std::unique_ptr<MeasurementSettings> m_settings;
    std::unique_ptr<uiutils::Host> m_host;
    std::unique_ptr<LoopbackMeasurement> m_measurement;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow* m_window = nullptr;
    std::unique_ptr<Touch> m_touch;
    LoopbackReport* m_report = nullptr;
    QmlWarnings m_warnings;
};

QTEST_MAIN(PagesTest)
#include "tst_pages.moc"
