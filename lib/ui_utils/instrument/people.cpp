#include "instrument/people_p.h"

#include "core/itemids_p.h"
#include "instrument/basemanager_p.h"

#include <kiv/kivclientitem.h>

namespace uiutils::instrument {

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
    for (const QString& name : names) {
        const QString id = name.startsWith(QLatin1Char(':')) ? name : itemids::systemSetting + name + QLatin1Char(':');
        if (const KIVClientItem* item = baseManagerItem(id))
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

} // namespace uiutils::instrument
