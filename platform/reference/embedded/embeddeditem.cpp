#include "embeddeditem_p.h"

#include <QHash>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace kiv::embedded {

namespace {

QString shownText(const QVariant& value, int precision)
{
    const QLocale locale;
    switch (int(value.type())) {
    case QMetaType::Double:
        return precision < 0 ? locale.toString(value.toDouble(), 'g', QLocale::FloatingPointShortest)
                             : locale.toString(value.toDouble(), 'f', precision);
    case QMetaType::Int:
        return locale.toString(value.toInt());
    case QMetaType::UInt:
        return locale.toString(value.toUInt());
    case QMetaType::QStringList:
    case QMetaType::QVariantList: {
        QStringList texts;
        const QVariantList elements = value.toList();
        texts.reserve(elements.size());
        for (const QVariant& element : elements)
            texts += shownText(element, precision);
        return texts.join(QLatin1String(", "));
    }
    default:
        return value.toString();
    }
}

/// QVariant compares doubles with a tolerance, which would swallow the steps of a large counter.
bool isSame(const QVariant& a, const QVariant& b)
{
    if (a.type() != b.type())
        return false;
    if (a.type() == QVariant::List) {
        const QVariantList as = a.toList();
        const QVariantList bs = b.toList();
        return std::equal(as.cbegin(), as.cend(), bs.cbegin(), bs.cend(), isSame);
    }
    if (a.type() != QVariant::Double)
        return a == b;
    return a.toDouble() == b.toDouble() || (std::isnan(a.toDouble()) && std::isnan(b.toDouble()));
}

} // namespace

EmbeddedItem::EmbeddedItem(ItemDescription description, QObject* parent)
    : KIVClientItem(parent)
    , m_description(std::move(description))
{
}

unsigned EmbeddedItem::getType() const
{
    static const QHash<QString, unsigned> codes {
            {QStringLiteral("std::string"), TypeString},
            {QStringLiteral("bool"), TypeBool},
            {QStringLiteral("int"), TypeInt},
            {QStringLiteral("uint"), TypeUInt},
            {QStringLiteral("double"), TypeDouble},
            {QStringLiteral("stringARRAY"), TypeStringArray},
            {QStringLiteral("doubleARRAY"), TypeDoubleArray},
    };
    return codes.value(m_description.type, TypeNone);
}

QString EmbeddedItem::getTypeName() const
{
    switch (getType()) {
    case TypeStringArray:
        return QStringLiteral("std::vector<string>");
    case TypeDoubleArray:
        return QStringLiteral("std::vector<double>");
    default:
        return m_description.type;
    }
}

QString EmbeddedItem::getValueString(bool showUnits) const
{
    QString text = shownText(m_description.value, m_description.precision);
    if (!showUnits || m_description.unit.isEmpty() || text.isEmpty())
        return text;
    return text.append(QLatin1Char(' ')).append(m_description.unit);
}

void EmbeddedItem::setValue(const QVariant& value)
{
    if (isSame(value, m_description.value))
        return;
    m_description.value = value;
    Q_EMIT valueChanged();
}

} // namespace kiv::embedded
