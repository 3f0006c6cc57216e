#include "plainservice.h"

namespace bench {

namespace {

struct Kind
{
    KIVClientItem::TypeCode type;
    QString typeName;
    QString name;
    QVariant value;
};

const QVector<Kind>& kinds()
{
    static const QVector<Kind> list {{KIVClientItem::TypeInt, QStringLiteral("int"), QStringLiteral("int"), 7},
            {KIVClientItem::TypeString, QStringLiteral("std::string"), QStringLiteral("string"),
                    QStringLiteral("seven")},
            {KIVClientItem::TypeDouble, QStringLiteral("double"), QStringLiteral("double"), 7.5}};
    return list;
}

QString typeNameOf(KIVClientItem::TypeCode type)
{
    for (const Kind& kind : kinds()) {
        if (kind.type == type)
            return kind.typeName;
    }
    return QString();
}

} // namespace

QString valueText(const QVariant& value, const QString& unit)
{
    return value.toString() + QLatin1Char(' ') + unit;
}

PlainServiceItem::PlainServiceItem(TypeCode type, const QString& id, const QString& name, const QVariant& value)
    : m_type(type)
    , m_typeName(typeNameOf(type))
    , m_id(id)
    , m_name(name)
    , m_unit(QStringLiteral("dB"))
    , m_value(value)
    , m_minimum(0)
    , m_maximum(100)
{
}

PlainServiceItem::~PlainServiceItem() = default;

void PlainServiceItem::report(const QVariant& value)
{
    m_value = value;
    Q_EMIT valueChanged();
}

QString PlainServiceItem::getValueString(bool showUnits) const
{
    return showUnits ? valueText(m_value, m_unit) : m_value.toString();
}

PlainService::PlainService(const QString& name, int count)
    : m_name(name)
{
    m_itemOfId.reserve(count);
    for (int i = 0; i < count; ++i) {
        const Kind& kind = kinds().at(i % kinds().size());
        const QString itemName = kind.name + QLatin1Char('_') + QString::number(i);
        const QString id = QStringLiteral(":config:%1:%2:").arg(name, itemName);
        auto* item = new PlainServiceItem(kind.type, id, itemName, kind.value);
        m_ids.append(id);
        m_items.append(item);
        m_itemOfId.insert(id, item);
    }
}

PlainService::~PlainService()
{
    qDeleteAll(m_items);
}

/// Who asks for the items in their order gets them without a search.
KIVClientItem* PlainService::getItem(const QString& id) const
{
    const int next = m_next < m_ids.size() ? m_next : 0;
    m_next = next + 1;
    return next < m_ids.size() && m_ids.at(next) == id ? m_items.at(next) : m_itemOfId.value(id);
}

} // namespace bench
