#include "instrument/basemanager_p.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

namespace uiutils::instrument {

KIVClientItem* baseManagerItem(const QString& id)
{
    const KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    return client ? client->getItem(id) : nullptr;
}

QVariant baseManagerValue(const QString& id)
{
    const KIVClientItem* item = baseManagerItem(id);
    return item ? item->getValue() : QVariant();
}

QString baseManagerText(const QString& id)
{
    return baseManagerValue(id).toString();
}

QStringList baseManagerList(const QString& id)
{
    return baseManagerValue(id).toStringList();
}

} // namespace uiutils::instrument
