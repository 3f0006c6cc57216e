#include "itemchanges_p.h"

#include "embedded/descriptioncheck_p.h"
#include "embedded/embeddeditem_p.h"
#include "embedded/valueconversion_p.h"

#include <kiv/kivclientitem.h>

#include <QtDebug>

namespace kiv::bus {

namespace {

using embedded::ChoiceDescription;
using embedded::ItemDescription;
using embedded::ItemField;
using embedded::ItemState;
using embedded::ItemStore;

/// What clients hear of a change.
struct Told
{
    ItemStore::StatePtr state;
    bool value = false;
    bool unit = false;
    bool ready = false;
    bool quality = false;
    bool applicable = false;
    bool choices = false;
};

Told takeValue(const ItemStore::StatePtr& state, const QVariant& value)
{
    const embedded::Conversion conversion
            = value.isValid() ? convertToType(state->type, state->description.members, value) : embedded::Conversion();
    if (!conversion.problem.isEmpty()) {
        qWarning("The service sent a value for %s that is %s; the item keeps the one it had.",
                qUtf8Printable(state->description.id), qUtf8Printable(conversion.problem));
        return {};
    }
    const ItemState::Changes changes = state->takeValue(conversion.value);
    return {state, changes.value, changes.unit};
}

Told takeChoices(const ItemStore::StatePtr& state, const QVector<ChoiceDescription>& choices)
{
    if (!state->isEnumeration() || !choicesProblem(state->type, choices).isEmpty()
            || choices == state->description.choices)
        return {};
    state->description.isEnumeration = true;
    state->description.choices = choices;
    Told told;
    told.state = state;
    told.choices = true;
    return told;
}

Told takeLimits(const ItemStore::StatePtr& state, const FieldChange& change)
{
    ItemDescription described = state->description;
    apply(change, &described);
    const embedded::Limits limits = embedded::convertLimits(state->type, described.minimum, described.maximum);
    // Both limits change one after the other, so that for a moment the lower may be above the upper.
    state->description.minimum = limits.minimum;
    state->description.maximum = limits.maximum;
    return {};
}

Told takeOther(const ItemStore::StatePtr& state, const FieldChange& change)
{
    const bool wasReady = state->description.isReady;
    const bool wasApplicable = state->description.isApplicable;
    const int quality = state->description.quality;
    const QString unit = state->unitText();
    if (change.field == ItemField::Attributes)
        state->setAttributes(change.value.toMap());
    else
        apply(change, &state->description);
    Told told;
    told.state = state;
    told.unit = state->unitText() != unit;
    told.ready = state->description.isReady != wasReady;
    told.quality = state->description.quality != quality;
    told.applicable = state->description.isApplicable != wasApplicable;
    return told;
}

Told take(const ItemChange& change)
{
    switch (change.change.field) {
    case ItemField::Value:
        return takeValue(change.state, change.change.value);
    case ItemField::Choices:
        return takeChoices(change.state, change.change.choices);
    case ItemField::Minimum:
    case ItemField::Maximum:
        return takeLimits(change.state, change.change);
    default:
        return takeOther(change.state, change.change);
    }
}

/// Anything may be gone after each signal but what the state holds.
void tell(const Told& told)
{
    embedded::emitChanges(told.state, {told.value, told.unit});
    const auto emitIf = [&](bool isTold, void (KIVClientItem::*signal)()) {
        if (isTold && told.state->item)
            Q_EMIT(told.state->item->*signal)();
    };
    emitIf(told.ready, &KIVClientItem::isReadyChanged);
    emitIf(told.quality, &KIVClientItem::qualityChanged);
    emitIf(told.applicable, &KIVClientItem::isApplicableChanged);
    if (told.choices && told.state->item)
        embedded::tellChoices(told.state->item);
}

FieldChange valueChange(ItemField field, const QVariant& value)
{
    return {field, value, {}};
}

} // namespace

KIVClientItem::Quality qualityOf(const QVariant& value)
{
    switch (value.toInt()) {
    case KIVClientItem::QualityPassing:
    case KIVClientItem::QualityWarning:
    case KIVClientItem::QualityFailing:
        return KIVClientItem::Quality(value.toInt());
    default:
        return KIVClientItem::QualityNone;
    }
}

void apply(const FieldChange& change, ItemDescription* item)
{
    switch (change.field) {
    case ItemField::Value:
        item->value = change.value;
        break;
    case ItemField::Label:
        item->label = change.value.toString();
        break;
    case ItemField::Unit:
        item->unit = change.value.toString();
        break;
    case ItemField::Ready:
        item->isReady = change.value.toBool();
        break;
    case ItemField::Quality:
        item->quality = qualityOf(change.value);
        break;
    case ItemField::Applicable:
        item->isApplicable = change.value.toBool();
        break;
    case ItemField::Minimum:
        item->minimum = change.value;
        break;
    case ItemField::Maximum:
        item->maximum = change.value;
        break;
    case ItemField::Choices:
        item->choices = change.choices;
        break;
    case ItemField::Attributes:
        item->attributes = change.value.toMap();
        break;
    }
}

QVector<FieldChange> differences(const ItemDescription& before, const ItemDescription& now)
{
    QVector<FieldChange> changes;
    const auto compare = [&changes](ItemField field, const QVariant& a, const QVariant& b) {
        if (a != b)
            changes += valueChange(field, b);
    };
    changes += valueChange(ItemField::Value, now.value);
    compare(ItemField::Label, before.label, now.label);
    compare(ItemField::Unit, before.unit, now.unit);
    compare(ItemField::Ready, before.isReady, now.isReady);
    compare(ItemField::Quality, int(before.quality), int(now.quality));
    compare(ItemField::Applicable, before.isApplicable, now.isApplicable);
    compare(ItemField::Minimum, before.minimum, now.minimum);
    compare(ItemField::Maximum, before.maximum, now.maximum);
    compare(ItemField::Attributes, before.attributes, now.attributes);
    if (!(before.choices == now.choices))
        changes += FieldChange {ItemField::Choices, {}, now.choices};
    return changes;
}

bool isSameItem(const ItemDescription& before, const ItemDescription& now)
{
    return before.type == now.type && before.precision == now.precision && before.applicableExpr == now.applicableExpr
            && before.members == now.members
            && (before.isEnumeration || !before.choices.isEmpty()) == (now.isEnumeration || !now.choices.isEmpty());
}

void take(const QVector<ItemChange>& changes)
{
    QVector<Told> all;
    all.reserve(changes.size());
    for (const ItemChange& change : changes) {
        const Told told = take(change);
        if (told.state)
            all += told;
    }
    for (const Told& told : qAsConst(all))
        tell(told);
}

} // namespace kiv::bus
