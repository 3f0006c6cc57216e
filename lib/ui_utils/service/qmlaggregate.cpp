#include "service/qmlaggregate.h"

#include "service/kivaggregatedata.h"

QMLAggregate::QMLAggregate(KivAggregateData& owner)
    : m_owner(&owner)
{
}

QMLAggregate::~QMLAggregate() = default;

void QMLAggregate::release()
{
    if (m_writes > 0)
        deleteLater();
    else
        delete this;
}

QVariant QMLAggregate::updateValue(QString const& key, QVariant const& input)
{
    // The map itself is needed until its base has ended the write.
    ++m_writes;
    if (m_owner)
        m_owner->updateAggregateProperty(key, input);
    --m_writes;
    return value(key);
}
