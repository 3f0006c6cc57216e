#pragma once

#include "service/kivdata.h"

class KivListAggregateClientItem;

namespace uiutils {
class KivListAggregateDataPrivate;
}

/// A table of a service as QML sees it: `value` is a QMLListAggregate, a list model with a role for each member. A new
/// table from the service resets the model; `value` is the same model, and valueChanged() is not emitted.
class UIUTILS_EXPORT KivListAggregateData : public KivData
{
    Q_OBJECT

public:
    /// A wrapper of `item`, which stays its owner's, as a child of `manifest`.
    KivListAggregateData(KivListAggregateClientItem* item, Manifest* manifest);
    ~KivListAggregateData() override;

    /// The model as a QMLListAggregate*; the wrapper owns it.
    QVariant getValue() const override;

private:
    void slotValueChanged() override;

    uiutils::KivListAggregateDataPrivate* const d;
};
