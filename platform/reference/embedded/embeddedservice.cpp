#include "embeddedservice.h"

#include "actions_p.h"
#include "descriptioncheck_p.h"
#include "embeddeditem_p.h"
#include "servicedata_p.h"
#include "texts_p.h"
#include "valueconversion_p.h"

#include <QDir>
#include <QPointer>

#include <algorithm>

namespace kiv::embedded {

namespace {

/// Sets a field, and emits `changed` if the value differs.
template<class Value>
bool change(const ItemStore::StatePtr& state, ItemField field, Value ItemDescription::*member, const Value& value,
        void (KIVClientItem::*changed)())
{
    if (!state)
        return false;
    if (state->description.*member == value)
        return true;
    state->description.*member = value;
    state->note(field);
    if (state->item)
        Q_EMIT(state->item->*changed)();
    return true;
}

} // namespace

EmbeddedService::EmbeddedService(const ServiceDescription& description, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<ServiceData>())
{
    d->name = description.service;
    setDelay(description.delayMs);
    for (const ItemDescription& item : description.items)
        d->items.add(std::make_shared<ItemState>(item));
    d->items.open();
    for (const QString& path : description.mounted)
        setMounted(path, true);
}

EmbeddedService::~EmbeddedService() = default;

QString EmbeddedService::name() const
{
    return d->name;
}

QStringList EmbeddedService::itemIds(const QString& prefix) const
{
    return d->items.sortedIds(prefix);
}

KIVClientItem* EmbeddedService::item(const QString& id) const
{
    return d->items.object(id);
}

bool EmbeddedService::setValue(const QString& id, const QVariant& value)
{
    const ItemStore::StatePtr state = d->items.find(id);
    if (!state || state->type == KIVClientItem::TypeAction)
        return false;
    const Conversion conversion = convertReported(state->type, state->description.members, value);
    if (!conversion.problem.isEmpty())
        return false;
    const ItemState::Changes changes = state->takeValue(conversion.value);
    if (changes.value && state->isKept)
        d->scheduleSave();
    emitChanges(state, changes);
    return true;
}

bool EmbeddedService::setAttribute(const QString& id, const QString& name, const QVariant& value)
{
    const ItemStore::StatePtr state = d->items.find(id);
    if (!state)
        return false;
    const QString oldUnit = state->unitText();
    state->setAttribute(name, value);
    state->note(ItemField::Attributes);
    emitChanges(state, {false, state->unitText() != oldUnit});
    return true;
}

bool EmbeddedService::setLabel(const QString& id, const QString& label)
{
    const ItemStore::StatePtr state = d->items.find(id);
    if (!state)
        return false;
    if (state->description.label != label) {
        state->description.label = label;
        state->note(ItemField::Label);
    }
    return true;
}

bool EmbeddedService::setUnit(const QString& id, const QString& unit)
{
    const ItemStore::StatePtr state = d->items.find(id);
    if (!state)
        return false;
    const QString oldUnit = state->unitText();
    if (state->description.unit != unit) {
        state->description.unit = unit;
        state->note(ItemField::Unit);
    }
    emitChanges(state, {false, state->unitText() != oldUnit});
    return true;
}

bool EmbeddedService::setReady(const QString& id, bool isReady)
{
    return change(
            d->items.find(id), ItemField::Ready, &ItemDescription::isReady, isReady, &KIVClientItem::isReadyChanged);
}

bool EmbeddedService::setQuality(const QString& id, KIVClientItem::Quality quality)
{
    return change(
            d->items.find(id), ItemField::Quality, &ItemDescription::quality, quality, &KIVClientItem::qualityChanged);
}

bool EmbeddedService::setApplicable(const QString& id, bool isApplicable)
{
    const ItemStore::StatePtr state = d->items.find(id);
    if (!state || !state->description.applicableExpr.isEmpty())
        return false;
    return change(state, ItemField::Applicable, &ItemDescription::isApplicable, isApplicable,
            &KIVClientItem::isApplicableChanged);
}

bool EmbeddedService::setChoices(const QString& id, const QVector<ChoiceDescription>& choices)
{
    const ItemStore::StatePtr state = d->items.find(id);
    if (!state || !state->isEnumeration() || !choicesProblem(state->type, choices).isEmpty())
        return false;
    QVector<ChoiceDescription>& old = state->description.choices;
    if (old == choices)
        return true;
    // An enumeration stays one when its last choice is removed.
    state->description.isEnumeration = true;
    old = choices;
    state->note(ItemField::Choices);
    if (state->item)
        tellChoices(state->item);
    return true;
}

bool EmbeddedService::setRange(const QString& id, const QVariant& minimum, const QVariant& maximum)
{
    const ItemStore::StatePtr state = d->items.find(id);
    if (!state)
        return false;
    const Limits limits = convertLimits(state->type, minimum, maximum);
    if (!limits.problem.isEmpty())
        return false;
    state->description.minimum = limits.minimum;
    state->description.maximum = limits.maximum;
    state->note(ItemField::Minimum);
    state->note(ItemField::Maximum);
    return true;
}

bool EmbeddedService::setRefusal(const QString& id, const QString& text)
{
    const ItemStore::StatePtr state = d->items.find(id);
    if (!state)
        return false;
    state->description.refusal = text;
    return true;
}

QString EmbeddedService::refusal(const QString& id) const
{
    const ItemStore::StatePtr state = d->items.find(id);
    return state ? state->description.refusal : QString();
}

void EmbeddedService::setDelay(int ms)
{
    d->delayMs = std::max(ms, 0);
}

int EmbeddedService::delay() const
{
    return d->delayMs;
}

bool EmbeddedService::setActionHandler(const QString& id, const ActionHandler& handler)
{
    if (!hasAction(d->items, id))
        return false;
    if (handler)
        d->handlers.insert(id, handler);
    else
        d->handlers.remove(id);
    return true;
}

void EmbeddedService::reportError(const QString& text)
{
    Q_EMIT errorReported(text);
}

bool EmbeddedService::setMounted(const QString& path, bool isMounted)
{
    if (!path.startsWith(QLatin1Char('/')))
        return false;
    if (isMounted)
        d->mounted.insert(QDir::cleanPath(path));
    else
        d->mounted.remove(QDir::cleanPath(path));
    if (d->mountsChanged)
        d->mountsChanged();
    return true;
}

bool EmbeddedService::isMounted(const QString& path) const
{
    return d->mounted.contains(QDir::cleanPath(path));
}

bool EmbeddedService::addItem(const ItemDescription& description, QString* problem)
{
    const QString reason = d->items.find(description.id)
            ? ServiceFileTexts::tr("the service %1 has an item %2 already").arg(d->name, description.id)
            : itemProblem(description);
    if (problem)
        *problem = reason;
    if (!reason.isEmpty())
        return false;
    const auto state = std::make_shared<ItemState>(description);
    if (d->keeper)
        d->keeper->takeBack(*state);
    d->items.add(state);
    if (isReachable())
        Q_EMIT itemsChanged();
    return true;
}

bool EmbeddedService::removeItem(const QString& id)
{
    const ItemStore::StatePtr state = d->items.find(id);
    if (!state)
        return false;
    if (d->keeper)
        d->keeper->letGo(*state);
    d->handlers.remove(id);
    const QPointer<EmbeddedService> self(this);
    d->items.remove(id);
    if (self && isReachable())
        Q_EMIT itemsChanged();
    return true;
}

void EmbeddedService::setReachable(bool isReachable)
{
    if (isReachable == d->items.isOpen())
        return;
    const QPointer<EmbeddedService> self(this);
    if (isReachable)
        d->items.open();
    else
        d->items.close();
    if (self)
        Q_EMIT itemsChanged();
}

bool EmbeddedService::isReachable() const
{
    return d->items.isOpen();
}

} // namespace kiv::embedded
