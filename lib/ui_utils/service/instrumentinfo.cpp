#include "service/instrumentinfo_p.h"

#include "core/itemids.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QCoreApplication>

namespace uiutils::instrument {

namespace {

QStringList baseManagerList(QLatin1String id)
{
    const KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    const KIVClientItem* item = client ? client->getItem(id) : nullptr;
    return item ? item->getValue().toStringList() : QStringList();
}

LabelledTexts userFields(QLatin1String listId)
{
    LabelledTexts fields;
    const QStringList names = baseManagerList(listId);
    if (names.isEmpty())
        return fields;
    const KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    for (const QString& name : names) {
        const QString id = name.startsWith(QLatin1Char(':')) ? name : itemids::systemSetting + name + QLatin1Char(':');
        if (const KIVClientItem* item = client->getItem(id))
            fields.append({item->getLabel(), item->getValueString()});
    }
    return fields;
}

} // namespace

LabelledTexts technicianFields()
{
    return userFields(itemids::technicianFields);
}

LabelledTexts customerFields()
{
    return userFields(itemids::customerFields);
}

LabelledTexts jobFields()
{
    static const struct
    {
        QLatin1String id;
        const char* label;
    } rows[] = {
            {itemids::jobId, QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Job ID")},
            {itemids::jobBan, QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Job BAN")},
            {itemids::jobTechnician, QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Job Technician")},
    };
    LabelledTexts fields;
    const KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    for (const auto& row : rows) {
        if (const KIVClientItem* item = client ? client->getItem(row.id) : nullptr)
            fields.append({QCoreApplication::translate("TemplateToHtmlWriter", row.label), item->getValueString()});
    }
    return fields;
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
    if (!client)
        return assemblies;
    const QStringList ids = client->getItemIds(itemids::hardware);
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

LabelledTexts configurationValues(const QString& service, const QString& module)
{
    LabelledTexts values;
    const KIVClientInterface* client = service.isEmpty() ? KIVClientInterface::getBaseMgrClient()
                                                         : KIVClientInterface::getSessionBusClient(service);
    if (!client || module.isEmpty())
        return values;
    const QString word = QLatin1Char(':') + module + QLatin1Char(':');
    const QStringList ids = client->getItemIds(itemids::configuration);
    for (const QString& id : ids) {
        const KIVClientItem* item = id.contains(word) ? client->getItem(id) : nullptr;
        if (!item)
            continue;
        const QString label = item->getLabel().isEmpty() ? item->getName() : item->getLabel();
        values.append({label, item->getValue().isValid() ? item->getValueString() : QStringLiteral("default")});
    }
    return values;
}

} // namespace uiutils::instrument
