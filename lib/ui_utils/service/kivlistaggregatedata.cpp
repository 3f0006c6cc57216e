#include "service/kivlistaggregatedata.h"

#include "service/changewatch_p.h"
#include "service/kivdata_p.h"
#include "service/qmllistaggregate.h"

#include <kiv/kivaggregateclientitem.h>

class uiutils::KivListAggregateDataPrivate : public KivDataPrivate
{
public:
    KivListAggregate list;
    QMLListAggregate* model = nullptr;
};

using uiutils::KivDataPrivate;
using uiutils::KivListAggregateDataPrivate;

KivListAggregateData::KivListAggregateData(KivListAggregateClientItem* item, Manifest* manifest)
    : KivData(std::make_unique<KivListAggregateDataPrivate>(), item, manifest)
    , d(static_cast<KivListAggregateDataPrivate*>(KivDataPrivate::of(this)))
{
    if (item)
        d->list = item->getListAggregate();
    d->model = new QMLListAggregate(d->list, this);
}

KivListAggregateData::~KivListAggregateData()
{
    // The model reads the table, which is destroyed before QObject deletes the children.
    delete d->model;
}

QVariant KivListAggregateData::getValue() const
{
    return QVariant::fromValue(d->model);
}

void KivListAggregateData::slotValueChanged()
{
    settleReport();
    if (!item())
        return;
    d->model->reset([this] {
        if (const auto* source = qobject_cast<KivListAggregateClientItem*>(item()))
            d->list = source->getListAggregate();
    });
    uiutils::ChangeWatch::flush();
}
