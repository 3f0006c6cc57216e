#include "instrument/unit_p.h"

#include "core/itemids_p.h"
#include "instrument/basemanager_p.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

namespace uiutils::instrument {

QString unitId()
{
    return baseManagerText(itemids::baseUnit).section(QLatin1Char('|'), 2, 2);
}

LabelledTexts softwareRevisions()
{
    const QStringList names = baseManagerList(itemids::softwareNames);
    const QStringList versions = baseManagerList(itemids::softwareVersions);
    LabelledTexts revisions;
    for (int i = 0; i < qMin(names.size(), versions.size()); ++i)
        revisions.append({names.at(i), versions.at(i)});
    return revisions;
}

QVector<QStringList> hardwareAssemblies()
{
    QVector<QStringList> assemblies;
    const KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    const QStringList ids = client ? client->getItemIds(itemids::hardware) : QStringList();
    for (const QString& id : ids) {
        const KIVClientItem* item = client->getItem(id);
        if (!item || !item->getName().endsWith(itemids::hardwareNameEnd))
            continue;
        const QString description = item->getValue().toString();
        if (!description.isEmpty())
            assemblies += description.split(QLatin1Char('|'));
    }
    return assemblies;
}

KIVItemSnapshot settingsOf(const QString& service)
{
    const KIVClientInterface* client = service.isEmpty() ? KIVClientInterface::getBaseMgrClient()
                                                         : KIVClientInterface::getSessionBusClient(service);
    return KIVItemSnapshot(client, itemids::configuration);
}

LabelledTexts configurationValues(const KIVItemSnapshot& settings, const QString& module)
{
    LabelledTexts values;
    if (module.isEmpty())
        return values;
    const QString word = QLatin1Char(':') + module + QLatin1Char(':');
    for (const KIVItemSnapshot::Item& item : settings.items()) {
        if (item.id.contains(word))
            values.append({shownLabel(item.label, item.name),
                    item.value.isValid() ? item.valueString : QStringLiteral("default")});
    }
    return values;
}

} // namespace uiutils::instrument
