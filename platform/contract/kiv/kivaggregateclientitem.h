#pragma once

#include <kiv/kiv_export.h>
#include <kiv/kivaggregate.h>
#include <kiv/kivclientitem.h>

/// An item whose value is an aggregate. getType() is KIVClientItem::TypeAggregate.
class KIV_EXPORT KivAggregateClientItem : public KIVClientItem
{
    Q_OBJECT

public:
    explicit KivAggregateClientItem(QObject* parent = nullptr);
    ~KivAggregateClientItem() override;

    /// A copy of the present aggregate. Its member names never change while the item lives.
    virtual KivAggregate getAggregate() const = 0;
};

/// An item whose value is a table. getType() is KIVClientItem::TypeListAggregate.
class KIV_EXPORT KivListAggregateClientItem : public KIVClientItem
{
    Q_OBJECT

public:
    explicit KivListAggregateClientItem(QObject* parent = nullptr);
    ~KivListAggregateClientItem() override;

    /// A copy of the present table. Its member names never change while the item lives.
    virtual KivListAggregate getListAggregate() const = 0;
};
