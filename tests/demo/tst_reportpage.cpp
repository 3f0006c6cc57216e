#include "base/durablefile_p.h"
#include "core/itemids_p.h"
#include "base/paths_p.h"
#include "demotypes.h"
#include "instrumentroot.h"
#include "loopbackmeasurement.h"
#include "files.h"
#include "qmlwarnings.h"
#include "ui_host/host.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivclientitem.h>

#include <QQmlContext>
#include <QQmlEngine>
#include <QtQuickTest>

#include <memory>

using namespace uiutils;
using namespace uiutils::demo;

/// The instrument behind the page under test.
class Driver : public QObject
{
    Q_OBJECT
    Q_PROPERTY(uiutils::demo::LoopbackMeasurement* measurement READ measurement CONSTANT)

public:
    explicit Driver(kiv::embedded::EmbeddedBackend* backend)
        : m_baseManager(backend->service("basemgr"))
    {
        m_measurement.setPause(0);
        m_measurement.setSamples(LoopbackMeasurement::fewestSamples);
    }

    LoopbackMeasurement* measurement() { return &m_measurement; }

    /// An instrument without reports, settings and USB drive.
    Q_INVOKABLE void reset()
    {
        m_root = std::make_unique<QTemporaryDir>();
        qputenv("UIUTILS_ROOT", m_root->path().toLocal8Bit());
        QString error;
        if (!prepareInstrumentRoot(m_root->path(), &error) || !makeFolder(folder(), &error))
            qFatal("%s", qPrintable(error));
        m_baseManager->setMounted(paths::usb, false);
        m_baseManager->setValue(itemids::usbAttached, false);
        m_baseManager->setValue(itemids::saveLocation, 0);
    }
    Q_INVOKABLE QVariant saveLocation() const { return m_baseManager->item(itemids::saveLocation)->getValue(); }

    /// The files in a folder below the root.
    Q_INVOKABLE QStringList filesIn(const QString& folder) const { return namesIn(m_root->filePath(folder)); }

    /// The contents of the report folder, hidden files included.
    Q_INVOKABLE QStringList files() const { return namesIn(folder()); }
    Q_INVOKABLE QString contents(const QString& name) const { return QString::fromUtf8(contentsOf(folder() + name)); }
    Q_INVOKABLE void put(const QString& name, const QString& text) const { writeFile(folder() + name, text.toUtf8()); }

    /// The engine's warnings since the last call.
    Q_INVOKABLE QStringList takeWarnings() { return m_warnings.take(); }
    void watch(QQmlEngine* engine) { m_warnings.watch(engine); }

private:
    static QString folder() { return onDisk(paths::reports) + "loopback/"; }

    kiv::embedded::EmbeddedService* const m_baseManager;
    std::unique_ptr<QTemporaryDir> m_root;
    LoopbackMeasurement m_measurement;
    QmlWarnings m_warnings;
};

class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        qputenv("QT_QUICK_CONTROLS_STYLE", "Default");
        const QStringList problems = m_backend.loadFolders({UIUTILS_SOURCE_DIR "/platform/reference/services"});
        if (!problems.isEmpty())
            qFatal("%s", qPrintable(problems.join('\n')));
        registerDemoTypes();
        m_driver = std::make_unique<Driver>(&m_backend);
        m_host = std::make_unique<uiutils::Host>();
        if (!m_host->start({{}, {}, {}, m_backend.serviceNames()}))
            qFatal("the services are not there");
    }
    void qmlEngineAvailable(QQmlEngine* engine)
    {
        m_driver->watch(engine);
        engine->rootContext()->setContextProperty("driver", m_driver.get());
        m_host->showTo(engine);
    }
    void cleanupTestCase()
    {
        m_driver.reset();
    }

private:
    kiv::embedded::EmbeddedBackend m_backend;
    std::unique_ptr<Driver> m_driver;
    std::unique_ptr<uiutils::Host> m_host;
};

QUICK_TEST_MAIN_WITH_SETUP(demo, Setup)
#include "tst_reportpage.moc"
