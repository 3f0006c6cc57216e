#include "service/pendingledger_p.h"

#include "languages/languages.h"
#include "service/itemregistry_p.h"
#include "service/kivdata_p.h"

#include <algorithm>

namespace uiutils {

std::shared_ptr<PendingLedger> PendingLedger::shared()
{
    static std::weak_ptr<PendingLedger> s_ledger;
    std::shared_ptr<PendingLedger> ledger = s_ledger.lock();
    if (!ledger) {
        ledger.reset(new PendingLedger);
        s_ledger = ledger;
        ledger->takePending();
        setCurrent(ledger.get());
        connect(Languages::instance(), &Languages::currentChanged, ledger.get(), &PendingLedger::renewAll);
    }
    return ledger;
}

PendingLedger::~PendingLedger()
{
    setCurrent(nullptr);
}

void PendingLedger::takePending()
{
    const QMap<QString, KivData*>& entries = itemregistry::entries();
    for (auto it = entries.cbegin(); it != entries.cend(); ++it) {
        const QVector<KivData*> wrappers = itemregistry::displaced(it.key()) << *it;
        for (KivData* wrapper : wrappers) {
            if (wrapper)
                noteChange(wrapper);
        }
    }
    for (const PendingChangePtr& change : qAsConst(m_noted))
        change->isNoted = false;
    m_noted.clear();
}

QVector<PendingChangePtr> PendingLedger::changes() const
{
    QVector<PendingChangePtr> list;
    list.reserve(m_changes.size());
    for (const PendingChangePtr& change : m_changes)
        list.append(change);
    std::sort(list.begin(), list.end(), [](const auto& a, const auto& b) { return a->serial < b->serial; });
    return list;
}

QString PendingLedger::problem(const std::function<bool(const QObject*)>& isOwner) const
{
    const bool concerns = std::any_of(m_problemOwners.cbegin(), m_problemOwners.cend(), isOwner);
    return concerns ? m_problem : QString();
}

// --- What is noted -------------------------------------------------------------------------------

void PendingLedger::note(const PendingChangePtr& change)
{
    if (change->isNoted)
        return;
    change->isNoted = true;
    m_noted.append(change);
}

PendingChangePtr PendingLedger::add(KivData* wrapper)
{
    auto change = std::make_shared<PendingChange>();
    change->item = wrapper;
    change->owner = wrapper->parent();
    // An entry reverts an item before it sets the item anew, and the change keeps its place.
    change->serial = m_lastRemoved.first == wrapper ? m_lastRemoved.second : ++m_serial;
    m_lastRemoved = {};
    change->id = wrapper->getId();
    m_changes.insert(wrapper, change);
    follow(change);
    return change;
}

/// What waits is noted by its wrapper. What was overtaken has ended for the wrapper, and is compared with later reports.
void PendingLedger::follow(const PendingChangePtr& change)
{
    KivData* const wrapper = change->item;
    wrapper->disconnect(this);
    const auto renewThis = [this, wrapper] { renewOne(wrapper); };
    connect(wrapper, &KivData::unitsChanged, this, renewThis);
    connect(wrapper, &KivData::enumCountChanged, this, renewThis);
    if (change->isOvertaken())
        connect(wrapper, &KivData::valueChanged, this, renewThis);
}

void PendingLedger::remove(const PendingChangePtr& change)
{
    change->item->disconnect(this);
    m_changes.remove(change->item);
    m_lastRemoved = {change->item, change->serial};
    forgetProblem(change->owner);
    change->isGone = true;
    note(change);
}

void PendingLedger::setProblem(const PendingChangePtr& change, const QString& reason)
{
    change->problem = reason;
    if (!change->isOvertaken())
        change->state = PendingChange::Refused;
    note(change);
}

void PendingLedger::noteChange(KivData* wrapper)
{
    const KivDataPrivate* parts = KivDataPrivate::of(wrapper);
    PendingChangePtr change = find(wrapper);
    const bool isPending = parts->isPending();
    forgetProblem(wrapper->parent());
    // The value that the service has already is no change.
    if (isPending && !meansSame(parts->value, parts->reportedValue())) {
        if (!change)
            change = add(wrapper);
        const bool wasOvertaken = change->isOvertaken();
        change->state = PendingChange::Waiting;
        if (wasOvertaken)
            follow(change);
        change->newValue = parts->value;
        change->problem.clear();
        renew(*change);
        note(change);
    } else if (change && (isPending || !change->isOvertaken())) {
        remove(change);
    }
}

void PendingLedger::noteReport(KivData* wrapper, const QVariant& wanted)
{
    const PendingChangePtr change = find(wrapper);
    if (!change || change->isOvertaken())
        return;
    change->newValue = wanted;
    overtake(change);
}

/// The change does not wait any more; it is done if the service has the value that was wanted.
void PendingLedger::overtake(const PendingChangePtr& change)
{
    change->state = PendingChange::Overtaken;
    change->problem.clear();
    const KIVClientItem* source = KivDataPrivate::of(change->item)->item;
    if (!source || meansSame(source->getValue(), change->newValue)) {
        remove(change);
        return;
    }
    renew(*change);
    follow(change);
    note(change);
}

void PendingLedger::noteRejection(KivData* wrapper, const QString& reason)
{
    if (const PendingChangePtr change = find(wrapper))
        setProblem(change, reason);
}

void PendingLedger::noteBatch(
        const QMap<QString, KivData*>& batch, const QString& reason, const QMap<QString, QString>& rejected)
{
    bool isNamed = false;
    m_problemOwners.clear();
    for (auto it = batch.cbegin(); it != batch.cend(); ++it) {
        m_problemOwners.insert((*it)->parent());
        const PendingChangePtr change = find(*it);
        if (!change || change->isOvertaken())
            continue;
        const auto own = rejected.find(it.key());
        if (!KivDataPrivate::of(*it)->isPending()) {
            // The service has reported another value before it rejected the batch.
            overtake(change);
        } else if (own != rejected.cend()) {
            isNamed = true;
            setProblem(change, *own);
        } else {
            change->state = PendingChange::Waiting;
            change->problem.clear();
            note(change);
        }
    }
    m_problem = isNamed ? QString() : reason;
    m_isStateNoted = true;
}

void PendingLedger::forgetProblem(const QObject* owner)
{
    if (m_problem.isEmpty() || !m_problemOwners.contains(owner))
        return;
    m_problem.clear();
    m_isStateNoted = true;
}

void PendingLedger::noteItem(KivData* wrapper)
{
    const PendingChangePtr change = find(wrapper);
    if (change && renew(*change))
        note(change);
}

bool PendingLedger::noteEnd(const KivData* wrapper)
{
    const PendingChangePtr change = find(wrapper);
    if (!change)
        return false;
    remove(change);
    change->item = nullptr;
    m_lastRemoved = {};
    return true;
}

void PendingLedger::renewOne(const KivData* wrapper)
{
    const PendingChangePtr change = find(wrapper);
    if (!change)
        return;
    const bool isOther = renew(*change);
    const bool isDone = change->isOvertaken() && meansSame(change->oldValue, change->newValue);
    if (isDone)
        remove(change);
    else if (isOther)
        note(change);
    flush();
}

void PendingLedger::renewAll()
{
    for (const PendingChangePtr& change : qAsConst(m_changes)) {
        if (renew(*change))
            note(change);
    }
    flush();
}

void PendingLedger::announce()
{
    // Whoever hears of it may let go of this.
    const std::shared_ptr<PendingLedger> self = shared_from_this();
    const QVector<PendingChangePtr> noted = std::exchange(m_noted, {});
    for (const PendingChangePtr& change : noted)
        change->isNoted = false;
    const bool isStateNoted = std::exchange(m_isStateNoted, false);
    if (!noted.isEmpty())
        Q_EMIT changed(noted);
    if (isStateNoted)
        Q_EMIT stateChanged();
}

} // namespace uiutils
