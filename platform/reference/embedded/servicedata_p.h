#pragma once

#include "embeddedservice.h"
#include "itemstore_p.h"
#include "statekeeper_p.h"

#include <QSet>

namespace kiv::embedded {

/// What the parts of the back end share about a service. Deleted with the service.
struct ServiceData
{
    QString name;
    int delayMs = 0;
    ItemStore items;
    QHash<QString, EmbeddedService::ActionHandler> handlers;
    /// Clean paths without a final slash.
    QSet<QString> mounted;
    /// Called when a drive was mounted or unmounted; may be empty.
    std::function<void()> mountsChanged;
    /// Null when nothing is stored.
    std::unique_ptr<StateKeeper> keeper;
    /// Lists all published services, this one included. Set when this one is published.
    std::function<QVector<EmbeddedService*>()> published;

    static ServiceData& of(const EmbeddedService& service) { return *service.d; }
    static EmbeddedService* create(const ServiceDescription& description, QObject* parent)
    {
        return new EmbeddedService(description, parent);
    }

    void scheduleSave()
    {
        if (keeper)
            keeper->schedule();
    }
};

} // namespace kiv::embedded
