#pragma once

#include "embeddedservice.h"
#include "itemstore_p.h"
#include "statekeeper_p.h"

#include <QSet>

namespace kiv::embedded {

/// What the parts of the back end know of a service in common. It goes with the service.
struct ServiceData
{
    QString name;
    int delayMs = 0;
    ItemStore items;
    QHash<QString, EmbeddedService::ActionHandler> handlers;
    /// Clean paths without a slash behind.
    QSet<QString> mounted;
    /// Called when a drive was mounted or taken away; may be empty.
    std::function<void()> mountsChanged;
    /// Null when nothing is kept.
    std::unique_ptr<StateKeeper> keeper;
    /// Lists the services that are published beside this one, and this one. Set when it is published.
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
