#include "itemtypes_p.h"

#include <QHash>

namespace kiv::embedded {

unsigned typeCode(const QString& type)
{
    static const QHash<QString, unsigned> codes {
            {QStringLiteral("std::string"), KIVClientItem::TypeString},
            {QStringLiteral("bool"), KIVClientItem::TypeBool},
            {QStringLiteral("int"), KIVClientItem::TypeInt},
            {QStringLiteral("uint"), KIVClientItem::TypeUInt},
            {QStringLiteral("double"), KIVClientItem::TypeDouble},
            {QStringLiteral("stringARRAY"), KIVClientItem::TypeStringArray},
            {QStringLiteral("doubleARRAY"), KIVClientItem::TypeDoubleArray},
            {QStringLiteral("action"), KIVClientItem::TypeAction},
            {QStringLiteral("aggregate"), KIVClientItem::TypeAggregate},
            {QStringLiteral("listAggregate"), KIVClientItem::TypeListAggregate},
    };
    return codes.value(type, KIVClientItem::TypeNone);
}

bool isSimpleType(unsigned type)
{
    return type == KIVClientItem::TypeString || type == KIVClientItem::TypeBool || type == KIVClientItem::TypeInt
            || type == KIVClientItem::TypeUInt || type == KIVClientItem::TypeDouble;
}

unsigned elementType(unsigned type)
{
    switch (type) {
    case KIVClientItem::TypeStringArray:
        return KIVClientItem::TypeString;
    case KIVClientItem::TypeDoubleArray:
        return KIVClientItem::TypeDouble;
    default:
        return type;
    }
}

KIVClientItem::Quality qualityNamed(const QString& name)
{
    if (name == QLatin1String("passing"))
        return KIVClientItem::QualityPassing;
    if (name == QLatin1String("warning"))
        return KIVClientItem::QualityWarning;
    return name == QLatin1String("failing") ? KIVClientItem::QualityFailing : KIVClientItem::QualityNone;
}

} // namespace kiv::embedded
