#pragma once

#include "service/kivdata.h"

class KivAggregateClientItem;

namespace uiutils {
class KivAggregateDataPrivate;
}

/// An aggregate of a service as QML sees it: `value` is a QMLAggregate with a key for each member.
class UIUTILS_EXPORT KivAggregateData : public KivData
{
    Q_OBJECT

public:
    /// A wrapper of `item`, which stays its owner's, as a child of `manifest`.
    KivAggregateData(KivAggregateClientItem* item, Manifest* manifest);
    ~KivAggregateData() override;

    /// The map as a QQmlPropertyMap*; the wrapper owns it.
    QVariant getValue() const override;

    /// Sets all keys of the map to what the item holds.
    void updateQmlMapFromItem();
    /// Sends the item's aggregate with one member changed, or holds it back during a transaction, and emits
    /// valueChanged(). The map keeps its value until the service reports the new aggregate.
    void updateAggregateProperty(QString const& key, QVariant value);

private:
    void slotValueChanged() override;
    KivAggregateClientItem* aggregateItem() const;

    uiutils::KivAggregateDataPrivate* const d;
};
