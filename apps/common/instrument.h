#pragma once

#include <QObject>
#include <QQmlPropertyMap>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

class Manifest;
class QQmlEngine;

namespace kiv::embedded {
class EmbeddedBackend;
class EmbeddedService;
}

namespace uiutils::apps {

/// Which services a program shows, and where they come from if they live in this process.
struct InstrumentSetup
{
    /// Folders of service files.
    QStringList serviceFolders;
    /// Below which changed settings are stored.
    QString root;
    /// Services that this program drives itself, on every platform.
    QStringList ownServices;
};

/// The services of the platform that KIV_PLATFORM chooses, as pages know them: every item by its name, and the manifests
/// as members of `services`, as in `services.basemgr.startChanges()`.
///
/// "embedded", the default, publishes the described services in this process. "bus" shows those of other processes on
/// the bus that KIV_BUS names, also such that come later, and publishes only the program's own ones there.
class Instrument : public QObject
{
    Q_OBJECT

public:
    /// Brings the services up. Returns null, having complained, when there are none, or KIV_PLATFORM is unknown.
    static std::unique_ptr<Instrument> start(const InstrumentSetup& setup);

    /// Over the services that `backend` publishes. The back end must outlive this object.
    explicit Instrument(const kiv::embedded::EmbeddedBackend& backend);
    ~Instrument() override;

    /// Makes them known to all pages of the engine. The engine must not have loaded a page yet and must be destroyed
    /// before this object.
    void showTo(QQmlEngine* engine);

    /// The own side of a service that this process publishes, or null.
    kiv::embedded::EmbeddedService* ownService(const QString& name) const;

    /// One line for each item: its name in QML, type and value, separated by tabs.
    QStringList listing() const;

private:
    /// Where the services come from.
    class Platform;
    class EmbeddedPlatform;
    class BusPlatform;

    Instrument();
    static std::unique_ptr<Platform> choosePlatform();
    void add(const QString& service);

    std::unique_ptr<Platform> m_platform;
    QVector<Manifest*> m_manifests;
    QQmlEngine* m_engine = nullptr;
    /// Pages can read the services, not replace them.
    class Services final : public QQmlPropertyMap
    {
        QVariant updateValue(const QString& key, const QVariant&) override { return value(key); }
    };
    Services m_byName;
};

} // namespace uiutils::apps
