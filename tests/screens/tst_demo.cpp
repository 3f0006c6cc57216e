#include "stage.h"

#include "demotypes.h"
#include "loopbackmeasurement.h"
#include "measurementsettings.h"
#include "ui_host/host.h"

#include <embedded/embeddedbackend.h>
#include <kiv/kivclientinterface.h>

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QTemporaryDir>

using namespace uiutils::demo;

/// All pages of the demo.
class DemoScreensTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("UIUTILS_ROOT", m_root.path().toLocal8Bit());
        qputenv("QT_QUICK_CONTROLS_STYLE", "Default");
        registerDemoTypes();
        ScreenAudit::prepare();
        QCOMPARE(m_services.loadFolders({UIUTILS_SOURCE_DIR "/platform/reference/services"}), QStringList());
        m_measurement.setPause(0);
        m_measurement.setSamples(20);
        m_settings = std::make_unique<MeasurementSettings>(&m_measurement,
                KIVClientInterface::getSessionBusClient("loopback"), MeasurementSettings::KeepSampleCounts);
        QVERIFY(m_host.start({{}, {}, {}, m_services.serviceNames()}));
        m_host.showTo(&m_engine);
        // Anything: its button is judged.
        m_engine.setInitialProperties({{"measurement", QVariant::fromValue(&m_measurement)}, {"inspector", QVariant::fromValue<QObject*>(this)}});
        m_engine.load(QUrl("qrc:/uiutils/demo/Main.qml"));
        QVERIFY(!m_engine.rootObjects().isEmpty());
        m_window = qobject_cast<QQuickWindow*>(m_engine.rootObjects().constFirst());
        m_measurement.start();
        QTRY_COMPARE_WITH_TIMEOUT(m_measurement.state(), LoopbackMeasurement::Finished, 60000);
    }

    void pages()
    {
        const QStringList pages = m_window->property("pageNames").toStringList();
        QVERIFY(pages.size() > 10);
        Stage stage(&m_engine, m_window, pages, [this](const QString& page) {
            QVariant shown;
            QVERIFY(QMetaObject::invokeMethod(m_window, "open", Q_RETURN_ARG(QVariant, shown), Q_ARG(QVariant, page)));
            QVERIFY2(shown.value<QQuickItem*>(), qPrintable(page));
        });
        stage.judgeAll();
        QCOMPARE(stage.report(), 0);
    }

private:
    QTemporaryDir m_root;
    kiv::embedded::EmbeddedBackend m_services;
    LoopbackMeasurement m_measurement;
    std::unique_ptr<MeasurementSettings> m_settings;
    uiutils::Host m_host;
    QQmlApplicationEngine m_engine;
    QQuickWindow* m_window = nullptr;
};

QTEST_MAIN(DemoScreensTest)
#include "tst_demo.moc"
