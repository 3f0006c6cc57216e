#include "plainwrapper.h"

#include "plainservice.h"

#include <kiv/baseformatter.h>

namespace bench {

PlainWrapper::PlainWrapper(const KIVClientItem* item, QObject* parent)
    : QObject(parent)
    , m_item(item)
    , m_id(item->getId())
    , m_value(item->getValue())
    , m_validator(new QIntValidator(this))
{
    connect(item, &KIVClientItem::valueChanged, this, &PlainWrapper::updateValue);
    connect(item, &KIVClientItem::unitsChanged, this, &PlainWrapper::updateUnits);
    connect(item, &KIVClientItem::isReadyChanged, this, &PlainWrapper::updateReady);
    connect(item, &KIVClientItem::qualityChanged, this, &PlainWrapper::updateQuality);
    connect(item, &KIVClientItem::isApplicableChanged, this, &PlainWrapper::updateApplicable);
}

PlainWrapper::~PlainWrapper() = default;

void PlainWrapper::updateValue()
{
    m_value = m_item->getValue();
    m_valueString = m_item->getValueString(true);
    m_valueStringNoUnits = m_item->getValueString(false);
    Q_EMIT valueChanged();
}

void PlainWrapper::updateUnits()
{
    m_unitString = m_item->getUnitString();
    Q_EMIT unitsChanged();
}

void PlainWrapper::updateReady()
{
    m_isReady = m_item->isReady();
    Q_EMIT isReadyChanged();
}

void PlainWrapper::updateQuality()
{
    m_qualityCode = m_item->getQualityCode();
    Q_EMIT qualityCodeChanged();
}

void PlainWrapper::updateApplicable()
{
    m_applicable = m_item->isApplicable();
    Q_EMIT applicableChanged();
}

PlainLabels::PlainLabels(QObject* parent)
    : QObject(parent)
    , m_value(7)
    , m_unit(QStringLiteral("dB"))
    , m_range(QStringLiteral("0 - 100 dB"))
    , m_quality(KIVClientItem::QualityPassing)
{
}

PlainLabels::~PlainLabels() = default;

void PlainLabels::setValue(const QVariant& value)
{
    m_value = value;
    Q_EMIT valueChanged();
}

QString PlainLabels::valueString() const
{
    return valueText(m_value, m_unit);
}

PlainNames::PlainNames(PlainLabels* labels, QObject* parent)
    : QObject(parent)
    , m_labels(labels)
{
}

PlainNames::~PlainNames() = default;

} // namespace bench
