#pragma once

#include "common/platform.h"

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
} // namespace kiv::embedded

namespace uiutils::apps {

/// The services of the platform that KIV_PLATFORM chooses, as pages know them: every item by its name, and the
/// manifests as members of `services`, as in `services.basemgr.startChanges()`.
class Instrument : public QObject
{
    Q_OBJECT

public:
    /// Brings the services up. Returns null, having complained, when there are none, or KIV_PLATFORM is unknown.
    static std::unique_ptr<Instrument> start(const ServiceSetup& setup);

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
    Instrument();
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
