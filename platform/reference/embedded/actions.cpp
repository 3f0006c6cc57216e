#include "actions_p.h"

namespace kiv::embedded {

ItemStore::StatePtr listedAction(const ItemStore& items, const QString& id)
{
    const ItemStore::StatePtr state = items.find(id);
    return state && state->type == KIVClientItem::TypeAction ? state : nullptr;
}

bool isManifestAction(const ItemStore& items, const QString& id, QLatin1String action)
{
    const QLatin1String category(":action:");
    const QString ending = QLatin1Char(':') + action + QLatin1Char(':');
    if (!id.startsWith(category) || !id.endsWith(ending) || id.size() <= category.size() + ending.size())
        return false;
    const QString name = id.mid(category.size(), id.size() - category.size() - ending.size());
    return bool(items.find(QLatin1String(":result:") + name + QLatin1String(":manifest:")));
}

bool hasAction(const ItemStore& items, const QString& id)
{
    return listedAction(items, id) || isManifestAction(items, id, applyConfigAction)
            || isManifestAction(items, id, saveConfigAction);
}

} // namespace kiv::embedded
