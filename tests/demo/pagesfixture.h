#pragma once

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

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStyleHints>
#include <QTcpServer>

#include <functional>
#include <memory>

using namespace uiutils::demo;

constexpr int longWait = 60000;

constexpr const char* lastName = ":config:basemgr:system:userInfo_lastName:";
constexpr const char* address = ":config:basemgr:system:customerInfo_address:";
constexpr const char* jobId = ":result:basemgr:jobmanager:jobID:";
constexpr const char* workOrder = ":config:workflow_manager_app:workflow_manager_reg_module:activeWorkOrderId:";
constexpr const char* roundTripLimit = ":config:loopback:limits:maximumRtt:";
constexpr const char* roundTripSamples = ":config:loopback:test:rttSamples:";

inline QList<QQuickItem*> itemsBelow(const QQuickItem* item)
{
    QList<QQuickItem*> items = item->childItems();
    const QList<QQuickItem*> children = items;
    for (const QQuickItem* child : children)
        items += itemsBelow(child);
    return items;
}

inline QString textOf(const QQuickItem* item)
{
    return item->property("text").toString();
}

inline KIVNotificationModelManager* notifications()
{
    return KIVNotificationModelManager::instance();
}

/// The demo's window over the services of the tree, with a finger.
class PagesFixture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_root.isValid());
        qputenv("UIUTILS_ROOT", m_root.path().toLocal8Bit());
        QGuiApplication::setQuitOnLastWindowClosed(false);
        // No second tap is taken for a bounce.
        QGuiApplication::styleHints()->setMouseDoubleClickInterval(0);
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
        const QString warnings = m_warnings.take().join('\n');
        QVERIFY2(warnings.isEmpty(), qPrintable(warnings));
    }

protected:
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
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window, longWait));
        // What comes after the first frame, and what comes last.
        QTRY_VERIFY(m_window->findChild<QObject*>("deskDrawer"));
        m_report = m_window->property("report").value<LoopbackReport*>();
        QVERIFY(m_report);
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

    void setAllReachable(bool isReachable)
    {
        for (const char* name : {"basemgr", "loopback", "jobs", "unit"})
            m_services->service(name)->setReachable(isReachable);
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
