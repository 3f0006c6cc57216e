#include "service/qmlaggregate.h"

#include "service/kivaggregatedata.h"

#include <QPointer>

class uiutils::QMLAggregatePrivate
{
public:
    QPointer<KivAggregateData> owner;
    bool isWritten = false;
};

QMLAggregate::QMLAggregate(KivAggregateData& owner)
    : d(std::make_unique<uiutils::QMLAggregatePrivate>())
{
    d->owner = &owner;
}

QMLAggregate::~QMLAggregate() = default;

void QMLAggregate::release()
{
    if (d->isWritten)
        deleteLater();
    else
        delete this;
}

QVariant QMLAggregate::updateValue(QString const& key, QVariant const& input)
{
    d->isWritten = true;
    if (d->owner)
        d->owner->updateAggregateProperty(key, input);
    return value(key);
}
