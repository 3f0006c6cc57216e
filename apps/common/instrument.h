#pragma once

#include <QQmlPropertyMap>
#include <QString>
#include <QStringList>
#include <QVector>

class Manifest;
class QQmlEngine;

namespace kiv::embedded {
class EmbeddedBackend;
}

namespace uiutils::apps {

/// The published services as pages know them: every item by its name, and the manifests as members of `services`, as in
/// `services.basemgr.startChanges()`.
class Instrument
{
public:
    /// Creates a manifest for each service that `backend` publishes. The back end must outlive this object.
    explicit Instrument(const kiv::embedded::EmbeddedBackend& backend);
    ~Instrument();
    Q_DISABLE_COPY_MOVE(Instrument)

    /// Makes them known to all pages of the engine. The engine must not have loaded a page yet and must be destroyed
    /// before this object.
    void showTo(QQmlEngine* engine);

    /// One line for each item: its name in QML, type and value, separated by tabs.
    QStringList listing() const;

private:
    QVector<Manifest*> m_manifests;
    /// Pages can read the services, not replace them.
    class Services final : public QQmlPropertyMap
    {
        QVariant updateValue(const QString& key, const QVariant&) override { return value(key); }
    };
    Services m_byName;
};

} // namespace uiutils::apps
