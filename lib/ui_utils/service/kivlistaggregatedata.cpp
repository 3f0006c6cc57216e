#include "service/kivlistaggregatedata.h"

#include "service/qmllistaggregate.h"

#include <kiv/kivaggregateclientitem.h>

KivListAggregateData::KivListAggregateData(KivListAggregateClientItem* item, Manifest* manifest)
    : KivData(item, manifest)
    , m_list(item ? item->getListAggregate() : KivListAggregate())
    , m_model(new QMLListAggregate(m_list, this))
{
}

KivListAggregateData::~KivListAggregateData()
{
    // The model reads the table, which goes before QObject deletes the children.
    delete m_model;
}

QVariant KivListAggregateData::getValue() const
{
    return QVariant::fromValue(m_model);
}

void KivListAggregateData::slotValueChanged()
{
    settleReport();
    if (!item())
        return;
    m_model->reset([this] {
        if (const auto* source = qobject_cast<KivListAggregateClientItem*>(item()))
            m_list = source->getListAggregate();
    });
}
