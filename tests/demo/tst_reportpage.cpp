#include "common/instrument.h"
#include "base/durablefile.h"
#include "core/itemids.h"
#include "base/paths.h"
#include "demotypes.h"
#include "instrumentroot.h"
#include "loopbackmeasurement.h"
#include "files.h"
#include "qmlwarnings.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivclientitem.h>

#include <QLocale>
#include <QQmlContext>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QtQuickTest>

#include <csignal>
#include <memory>
#include <sys/mount.h>
#include <sys/resource.h>
#include <utility>

using namespace uiutils;
using namespace uiutils::demo;

/// The instrument's side, for the page under test.
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
        ::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_freeDisk);
    }

    LoopbackMeasurement* measurement() { return &m_measurement; }

    /// An instrument without reports, settings and stick.
    Q_INVOKABLE void reset()
    {
        m_root = std::make_unique<QTemporaryDir>();
        qputenv("UIUTILS_ROOT", m_root->path().toLocal8Bit());
        QString error;
        if (!prepareInstrumentRoot(m_root->path(), QString(), &error) || !makeFolder(folder(), &error))
            qFatal("%s", qPrintable(error));
        m_baseManager->setMounted(paths::usb, false);
        m_baseManager->setValue(itemids::usbAttached, false);
        m_baseManager->setValue(itemids::saveLocation, 0);
    }
    Q_INVOKABLE QVariant saveLocation() const { return m_baseManager->item(itemids::saveLocation)->getValue(); }
    Q_INVOKABLE void setSaveLocation(int location) const { m_baseManager->setValue(itemids::saveLocation, location); }
    Q_INVOKABLE void setFewSamples() { m_measurement.setSamples(LoopbackMeasurement::fewestSamples); }
    /// So many that a save of them takes its time.
    Q_INVOKABLE void setManySamples() { m_measurement.setSamples(1500); }

    /// Puts a file system with less room than a save asks for into the place of the stick's. False when this user may not.
    Q_INVOKABLE bool fillStick()
    {
        m_isStickFull = ::mount("none", stickFolder().constData(), "tmpfs", 0, "size=256k") == 0;
        return m_isStickFull;
    }
    Q_INVOKABLE void emptyStick()
    {
        if (std::exchange(m_isStickFull, false))
            ::umount2(stickFolder().constData(), MNT_DETACH);
    }

    /// The text of a file below the root; of one that is no text, its beginning.
    Q_INVOKABLE QString textOf(const QString& path) const
    {
        return QString::fromUtf8(contentsOf(m_root->filePath(path)));
    }
    /// The files in a folder below the root.
    Q_INVOKABLE QStringList filesIn(const QString& folder) const { return namesIn(m_root->filePath(folder)); }

    /// What lies in the report folder, hidden files too.
    Q_INVOKABLE QStringList files() const { return namesIn(folder()); }
    Q_INVOKABLE QString contents(const QString& name) const { return QString::fromUtf8(contentsOf(folder() + name)); }
    Q_INVOKABLE void put(const QString& name, const QString& text) const { writeFile(folder() + name, text.toUtf8()); }

    /// From now on no file can grow beyond so many bytes; a negative number takes that back.
    Q_INVOKABLE void limitFiles(int bytes) const
    {
        const rlimit limit {bytes < 0 ? m_freeDisk.rlim_cur : rlim_t(bytes), m_freeDisk.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }

    /// What the engine has complained about since the last call.
    Q_INVOKABLE QStringList takeWarnings() { return m_warnings.take(); }
    void watch(QQmlEngine* engine) { m_warnings.watch(engine); }

private:
    QByteArray stickFolder() const { return QFile::encodeName(m_root->filePath("mnt/usb")); }
    static QString folder() { return onDisk(paths::reports) + "loopback/"; }

    kiv::embedded::EmbeddedService* const m_baseManager;
    std::unique_ptr<QTemporaryDir> m_root;
    LoopbackMeasurement m_measurement;
    rlimit m_freeDisk {};
    bool m_isStickFull = false;
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
        m_instrument = std::make_unique<uiutils::apps::Instrument>(m_backend);
    }
    void qmlEngineAvailable(QQmlEngine* engine)
    {
        m_driver->watch(engine);
        engine->rootContext()->setContextProperty("driver", m_driver.get());
        m_instrument->showTo(engine);
    }
    void cleanupTestCase()
    {
        m_driver.reset();
    }

private:
    kiv::embedded::EmbeddedBackend m_backend;
    std::unique_ptr<Driver> m_driver;
    std::unique_ptr<uiutils::apps::Instrument> m_instrument;
};

QUICK_TEST_MAIN_WITH_SETUP(demo, Setup)
#include "tst_reportpage.moc"
