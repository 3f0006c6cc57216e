#include "ui_host/namedservices_p.h"

#include <kiv/kivclientinterface.h>

#include <QCoreApplication>

namespace uiutils {

bool NamedServices::begin(const QStringList& names, QStringList* problems)
{
    bool isAny = names.isEmpty();
    for (const QString& name : names) {
        KIVClientInterface* const client = KIVClientInterface::getSessionBusClient(name);
        if (client)
            follow(name, client);
        else
            *problems += QCoreApplication::translate("Host", "There is no service %1.").arg(name);
        isAny = isAny || client;
    }
    return isAny;
}

void NamedServices::follow(const QString& name, KIVClientInterface* client)
{
    if (client->isValid()) {
        m_reached += name;
        return;
    }
    connect(client, &KIVClientInterface::itemsChanged, this, [this, name, client] {
        if (!client->isValid() || m_reached.contains(name))
            return;
        m_reached += name;
        Q_EMIT serviceAppeared(name);
    });
}

} // namespace uiutils
