#include "embeddeditem_p.h"

#include <QLocale>

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

} // namespace

EmbeddedItem::EmbeddedItem(ItemDescription description, QObject* parent)
    : KIVClientItem(parent)
    , m_description(std::move(description))
{
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
    if (value == m_description.value)
        return;
    m_description.value = value;
    Q_EMIT valueChanged();
}

} // namespace kiv::embedded
