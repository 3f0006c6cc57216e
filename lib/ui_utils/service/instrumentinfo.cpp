#include "service/instrumentinfo_p.h"

#include "core/itemids.h"
#include "document/reportmetadata.h"

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

/// The value as a text; empty without a client or an item.
QString textOf(const KIVClientInterface* client, QLatin1String id)
{
    const KIVClientItem* item = client ? client->getItem(id) : nullptr;
    return item ? item->getValue().toString() : QString();
}

QString shownLabel(const QString& label, const QString& name)
{
    return label.isEmpty() ? name : label;
}

} // namespace

QStringList technicianFieldNames()
{
    return baseManagerList(itemids::technicianFields);
}

QStringList customerFieldNames()
{
    return baseManagerList(itemids::customerFields);
}

LabelledTexts userFields(const QStringList& names)
{
    LabelledTexts fields;
    const KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    for (const QString& name : names) {
        const QString id = name.startsWith(QLatin1Char(':')) ? name : itemids::systemSetting + name + QLatin1Char(':');
        if (const KIVClientItem* item = client ? client->getItem(id) : nullptr)
            fields.append({shownLabel(item->getLabel(), item->getName()), item->getValueString()});
    }
    return fields;
}

QString technicianName()
{
    const QStringList included = technicianFieldNames();
    QStringList parts;
    for (const QLatin1String& name : {itemids::technicianFirstName, itemids::technicianLastName}) {
        const LabelledTexts fields = included.contains(name) ? userFields({name}) : LabelledTexts();
        if (!fields.isEmpty() && fields.constFirst().text != QLatin1String("default"))
            parts += fields.constFirst().text;
    }
    return parts.join(QLatin1Char(' ')).trimmed();
}

QString unitId()
{
    return textOf(KIVClientInterface::getBaseMgrClient(), itemids::baseUnit).section(QLatin1Char('|'), 2, 2);
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

void addWorkOrder(ReportMetadata* metadata)
{
    const KIVClientInterface* client = KIVClientInterface::getSessionBusClient(itemids::workflowManager);
    const QString order = textOf(client, itemids::activeWorkOrder);
    if (order.isEmpty() || textOf(client, itemids::workflowSession) != qEnvironmentVariable("UIUTILS_SESSION"))
        return;
    metadata->setInfo(std::string("wo"), order.toStdString());
    metadata->setInfo(std::string("workflowId"), textOf(client, itemids::activeWorkflow).toStdString());
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
