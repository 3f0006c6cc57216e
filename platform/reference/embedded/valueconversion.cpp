#include "valueconversion_p.h"

#include "itemtypes_p.h"
#include "texts_p.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kiv::embedded {

namespace {

bool isText(const QVariant& value)
{
    return value.userType() == QMetaType::QString || value.userType() == QMetaType::QByteArray;
}

bool isNumber(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

Conversion toDouble(const QVariant& value)
{
    bool isRead = isNumber(value);
    const double number = isText(value) ? value.toString().toDouble(&isRead) : value.toDouble();
    return isRead ? Conversion {number, {}} : Conversion {{}, ValueTexts::tr("not a number")};
}

template<class Integer> Conversion toInteger(const QVariant& value)
{
    const Conversion conversion = toDouble(value);
    if (!conversion.problem.isEmpty())
        return conversion;
    const double number = conversion.value.toDouble();
    if (!std::isfinite(number))
        return {{}, ValueTexts::tr("not a finite number")};
    if (number != std::floor(number))
        return {{}, ValueTexts::tr("not a whole number")};
    if (number < double(std::numeric_limits<Integer>::min()) || number > double(std::numeric_limits<Integer>::max()))
        return {{}, ValueTexts::tr("out of range")};
    return {QVariant::fromValue(Integer(number)), {}};
}

Conversion toBool(const QVariant& value)
{
    if (value.userType() == QMetaType::Bool)
        return {value, {}};
    const QString text = isText(value) || isNumber(value) ? value.toString().trimmed() : QString();
    if (text == QLatin1String("true") || text == QLatin1String("1"))
        return {true, {}};
    if (text == QLatin1String("false") || text == QLatin1String("0"))
        return {false, {}};
    return {{}, ValueTexts::tr("neither true nor false")};
}

Conversion toText(const QVariant& value)
{
    if (!isText(value) && !isNumber(value) && value.userType() != QMetaType::Bool)
        return {{}, ValueTexts::tr("not a text")};
    return {value.toString(), {}};
}

Conversion toSimple(unsigned type, const QVariant& value)
{
    switch (type) {
    case KIVClientItem::TypeString:
        return toText(value);
    case KIVClientItem::TypeBool:
        return toBool(value);
    case KIVClientItem::TypeInt:
        return toInteger<int>(value);
    case KIVClientItem::TypeUInt:
        return toInteger<uint>(value);
    case KIVClientItem::TypeDouble:
        return toDouble(value);
    default:
        return {{}, ValueTexts::tr("not a value that an item of this type can have")};
    }
}

bool isList(const QVariant& value)
{
    return !isText(value) && value.canConvert(QMetaType::QVariantList);
}

/// Long curves arrive in the final type; they are checked, not copied.
bool holdsOnly(const QVariantList& list, QMetaType::Type type)
{
    return std::all_of(list.cbegin(), list.cend(), [type](const QVariant& v) { return v.userType() == type; });
}

Conversion toArray(unsigned type, const QVariant& value)
{
    if (type == KIVClientItem::TypeStringArray && value.userType() == QMetaType::QStringList)
        return {value, {}};
    if (!isList(value))
        return {{}, ValueTexts::tr("not a list")};
    QVariantList list = value.toList();
    if (type == KIVClientItem::TypeDoubleArray && holdsOnly(list, QMetaType::Double))
        return {list, {}};
    QStringList texts;
    for (int i = 0; i < list.size(); ++i) {
        const Conversion element = toSimple(elementType(type), list.at(i));
        if (!element.problem.isEmpty())
            return {{}, atElement(i, element.problem)};
        list[i] = element.value;
        texts += type == KIVClientItem::TypeStringArray ? element.value.toString() : QString();
    }
    return {type == KIVClientItem::TypeStringArray ? QVariant(texts) : QVariant(list), {}};
}

Conversion toAggregate(const QVector<MemberDescription>& members, const QVariant& value)
{
    if (isText(value) || !value.canConvert(QMetaType::QVariantMap))
        return {{}, ValueTexts::tr("not an aggregate")};
    QVariantMap rest = value.toMap();
    QVariantMap aggregate;
    for (const MemberDescription& member : members) {
        const auto given = rest.constFind(member.name);
        if (given == rest.cend())
            return {{}, ValueTexts::tr("the member \"%1\" is missing").arg(member.name)};
        const Conversion converted = toSimple(typeCode(member.type), *given);
        if (!converted.problem.isEmpty())
            return {{}, ValueTexts::tr("member \"%1\": %2").arg(member.name, converted.problem)};
        aggregate.insert(member.name, converted.value);
        rest.remove(member.name);
    }
    if (!rest.isEmpty())
        return {{}, ValueTexts::tr("there is no member \"%1\"").arg(rest.firstKey())};
    return {aggregate, {}};
}

Conversion toTable(const QVector<MemberDescription>& members, const QVariant& value)
{
    if (!isList(value))
        return {{}, ValueTexts::tr("not a list of aggregates")};
    QVariantList rows = value.toList();
    for (int i = 0; i < rows.size(); ++i) {
        const Conversion row = toAggregate(members, rows.at(i));
        if (!row.problem.isEmpty())
            return {{}, atElement(i, row.problem)};
        rows[i] = row.value;
    }
    return {rows, {}};
}

} // namespace

QString atElement(int index, const QString& problem)
{
    return ValueTexts::tr("element %1: %2").arg(QString::number(index + 1), problem);
}

bool isSame(const QVariant& a, const QVariant& b)
{
    if (a.userType() != b.userType())
        return false;
    if (a.userType() == QMetaType::QVariantList) {
        const QVariantList as = a.toList();
        const QVariantList bs = b.toList();
        return std::equal(as.cbegin(), as.cend(), bs.cbegin(), bs.cend(), isSame);
    }
    if (a.userType() == QMetaType::QVariantMap) {
        const QVariantMap as = a.toMap();
        const QVariantMap bs = b.toMap();
        return as.keys() == bs.keys() && std::equal(as.cbegin(), as.cend(), bs.cbegin(), bs.cend(), isSame);
    }
    // QVariant compares doubles with a tolerance, which would hide the steps of a large counter.
    if (a.userType() == QMetaType::Double)
        return a.toDouble() == b.toDouble() || (std::isnan(a.toDouble()) && std::isnan(b.toDouble()));
    return a == b;
}

Conversion convertToType(unsigned type, const QVector<MemberDescription>& members, const QVariant& value)
{
    switch (type) {
    case KIVClientItem::TypeStringArray:
    case KIVClientItem::TypeDoubleArray:
        return toArray(type, value);
    case KIVClientItem::TypeAggregate:
        return toAggregate(members, value);
    case KIVClientItem::TypeListAggregate:
        return toTable(members, value);
    default:
        return toSimple(type, value);
    }
}

Conversion convertReported(unsigned type, const QVector<MemberDescription>& members, const QVariant& value)
{
    const bool isNone = !value.isValid() || value.userType() == QMetaType::Nullptr;
    return isNone ? Conversion() : convertToType(type, members, value);
}

} // namespace kiv::embedded
