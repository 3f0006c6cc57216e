#include <kiv/kivaggregateclientitem.h>

KivAggregateClientItem::KivAggregateClientItem(QObject* parent)
    : KIVClientItem(parent)
{
}

KivAggregateClientItem::~KivAggregateClientItem() = default;

KivListAggregateClientItem::KivListAggregateClientItem(QObject* parent)
    : KIVClientItem(parent)
{
}

KivListAggregateClientItem::~KivListAggregateClientItem() = default;
