#pragma once

#include "changelog.h"
#include "favourites.h"
#include "inspectedservice.h"
#include "itemrows.h"
#include "servicerecording.h"

#include <QObject>
#include <QVariantList>

namespace uiutils {
class Host;
}

namespace uiutils::inspector {

class ChangeFollower;

/// What the panel shows: all services of a host with their items, and what has happened since.
class Inspector : public QObject
{
    Q_OBJECT
    Q_PROPERTY(uiutils::inspector::ItemRows* items READ items CONSTANT)
    Q_PROPERTY(uiutils::inspector::ChangeLog* log READ log CONSTANT)
    Q_PROPERTY(uiutils::inspector::ServiceRecording* recording READ recording CONSTANT)
    /// InspectedService objects, in the order of their names at the start; later services follow.
    Q_PROPERTY(QVariantList services READ services NOTIFY servicesChanged)

public:
    /// The host must be up and outlive the object. `favouritesFile` as Favourites has it.
    Inspector(Host* host, const QString& favouritesFile, QObject* parent = nullptr);
    ~Inspector() override;

    /// Whether the log hears every item; it begins to listen a few items at a time.
    bool isListening() const;

    ItemRows* items() { return &m_items; }
    ChangeLog* log() { return &m_log; }
    ServiceRecording* recording() { return &m_recording; }
    QVariantList services() const;

    /// The service of that full name, or null.
    Q_INVOKABLE uiutils::inspector::InspectedService* service(const QString& name) const;
    /// The service of an item, or null.
    Q_INVOKABLE uiutils::inspector::InspectedService* serviceOf(QObject* item) const;
    /// The wrapper of an item, or null.
    Q_INVOKABLE QObject* item(const QString& id) const;

Q_SIGNALS:
    void servicesChanged();

private:
    void add(const QString& name);

    Host* const m_host;
    Favourites m_favourites;
    ItemRows m_items;
    ChangeLog m_log;
    ServiceRecording m_recording;
    QVector<InspectedService*> m_services;
    /// Children of the services.
    QVector<ChangeFollower*> m_followers;
};

/// Where the favourites of a program's user are kept, below the root in use.
QString favouritesFile();

/// Makes the types of the panel known to QML, as UiUtils.Inspector. More than one call does no harm.
void registerTypes();

} // namespace uiutils::inspector
