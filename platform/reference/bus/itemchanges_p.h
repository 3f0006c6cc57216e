#pragma once

#include "embedded/itemstore_p.h"

#include <QVector>

namespace kiv::bus {

/// What a field of an item has become; the choices alone are no value.
struct FieldChange
{
    embedded::ItemField field = embedded::ItemField::Value;
    QVariant value;
    QVector<embedded::ChoiceDescription> choices;
};

struct ItemChange
{
    embedded::ItemStore::StatePtr state;
    FieldChange change;
};

/// A quality as it came; none for a number that is no quality.
KIVClientItem::Quality qualityOf(const QVariant& value);

/// Puts a field into a description as it came.
void apply(const FieldChange& change, embedded::ItemDescription* item);

/// The fields that may change while an item lives and that differ in `now`.
QVector<FieldChange> differences(const embedded::ItemDescription& before, const embedded::ItemDescription& now);

/// Whether an item that was described as `before` can become `now` by changes of fields.
bool isSameItem(const embedded::ItemDescription& before, const embedded::ItemDescription& now);

/// Takes all changes, then lets clients hear of each. A value that the item cannot have is left out. Nothing of the
/// service may be touched after that.
void take(const QVector<ItemChange>& changes);

} // namespace kiv::bus
