#pragma once

#include "service/kivdata.h"

#include <kiv/kivaggregate.h>

class KivListAggregateClientItem;
class QMLListAggregate;

/// A table of a service as QML sees it: `value` is a QMLListAggregate, a list model with a role for each member. A new
/// table from the service resets the model; `value` is the same model, and valueChanged() is not emitted.
class UIUTILS_EXPORT KivListAggregateData : public KivData
{
    Q_OBJECT

public:
    KivListAggregateData(KivListAggregateClientItem* item, Manifest* manifest);
    ~KivListAggregateData() override;

    /// The model as a QMLListAggregate*; the wrapper owns it.
    QVariant getValue() const override;

private:
    void slotValueChanged() override;

    KivListAggregate m_list;
    QMLListAggregate* m_model;
};
