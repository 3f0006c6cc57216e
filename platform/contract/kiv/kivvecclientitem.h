#pragma once

#include <kiv/kiv_export.h>
#include <kiv/kivclientitem.h>

/// An item whose value is an array; the value's elements are in the list that getValue() gives.
class KIV_EXPORT KIVVecClientItem : public KIVClientItem
{
    Q_OBJECT

public:
    explicit KIVVecClientItem(QObject* parent = nullptr);
    ~KIVVecClientItem() override;
};
