#include "service/qmlaggregate.h"

#include "service/kivaggregatedata.h"

QMLAggregate::QMLAggregate(KivAggregateData& owner)
    : m_owner(&owner)
{
}

QMLAggregate::~QMLAggregate() = default;

void QMLAggregate::release()
{
    if (m_isWritten)
        deleteLater();
    else
        delete this;
}

QVariant QMLAggregate::updateValue(QString const& key, QVariant const& input)
{
    m_isWritten = true;
    if (m_owner)
        m_owner->updateAggregateProperty(key, input);
    return value(key);
}
