#include "itemtext.h"

#include "service/kivdata.h"
#include "texts.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

namespace uiutils::inspector {

namespace {

constexpr int longest = 120;

QString inOneLine(const QString& text)
{
    const QString line = text.left(longest + 1).simplified();
    return text.size() > longest ? line.left(longest) + QChar(0x2026) : line;
}

/// What is said of a value that is not one text; null for any other.
QString contents(const QVariant& value)
{
    // By type, so that no list is copied or converted only to be counted.
    switch (value.userType()) {
    case QMetaType::QStringList:
        return Texts::tr("%n elements", nullptr, static_cast<const QStringList*>(value.constData())->size());
    case QMetaType::QVariantList:
        return Texts::tr("%n elements", nullptr, static_cast<const QVariantList*>(value.constData())->size());
    case QMetaType::QVariantMap:
        return Texts::tr("%n members", nullptr, static_cast<const QVariantMap*>(value.constData())->size());
    default:
        return QString();
    }
}

bool holdsSeveral(const QString& type)
{
    return type.endsWith(QLatin1String("ggregate")) || type.startsWith(QLatin1String("std::vector"));
}

} // namespace

QString shortText(const KivData& item)
{
    const KIVClientInterface* const client = item.getClient();
    const KIVClientItem* const source
            = client && holdsSeveral(item.getType()) ? client->getItem(item.getId()) : nullptr;
    return source ? contents(source->getValue()) : inOneLine(item.getValueString());
}

QString shortText(const KIVClientItem& item)
{
    return holdsSeveral(item.getTypeName()) ? contents(item.getValue()) : inOneLine(item.getValueString());
}

} // namespace uiutils::inspector
