#include "service/pendingchanges.h"

#include "core/plainvalue_p.h"
#include "service/kivdata_p.h"
#include "service/manifest.h"
#include "service/manifeststate_p.h"
#include "service/pendingledger_p.h"

#include <algorithm>
#include <utility>

namespace uiutils {

static_assert(int(PendingChanges::Waiting) == int(PendingChange::Waiting)
        && int(PendingChanges::Overtaken) == int(PendingChange::Overtaken)
        && int(PendingChanges::Refused) == int(PendingChange::Refused));

/// What the model has of the ledger.
class PendingChangesPrivate
{
public:
    /// A change as it is listed.
    struct Row
    {
        PendingChangePtr change;
        bool isOvertaken = false;
    };

    /// What has a notifier of its own.
    struct Totals
    {
        int count = 0;
        int waiting = 0;
        int overtaken = 0;
        bool isChanging = false;
        QString problem;
    };

    explicit PendingChangesPrivate(PendingChanges* owner)
        : q(owner)
    {
    }

    bool lists(const QObject* owner) const;
    QVector<QPointer<Manifest>> scope() const;
    PendingChangePtr changeAt(int row) const;
    QVector<QPointer<KivData>> waitingItems() const;
    QVector<QPointer<KivData>> waitingItems(const Manifest* manifest) const;
    bool send(Manifest* manifest) const;
    QString set(KivData* item, const QVariant& value) const;

    void take(const QVector<PendingChangePtr>& changes);
    void update();
    void requestReset()
    {
        m_isResetDue = true;
        update();
    }
    void reset();
    void announceTotals();

    const std::shared_ptr<PendingLedger> ledger = PendingLedger::shared();
    QVariantList manifests;
    QVector<QPointer<Manifest>> listed;

private:
    int rowOf(const PendingChangePtr& change) const;
    void announceRows(const QVector<PendingChangePtr>& changes);
    void removeRows(const QVector<PendingChangePtr>& changes);
    void addRows(const QVector<PendingChangePtr>& changes);

    PendingChanges* q;
    /// In ascending order of their serials.
    QVector<Row> m_rows;
    int m_overtaken = 0;
    Totals m_announced;
    /// What is still to be listed: a slot that hears of rows may change others, but rows never change inside of a
    /// change of rows.
    QVector<PendingChangePtr> m_todo;
    bool m_isResetDue = false;
    bool m_isUpdating = false;

public:
    int rowCount() const { return m_rows.size(); }
    PendingChangePtr at(int row) const { return m_rows.value(row).change; }
    int overtaken() const { return m_overtaken; }
};

bool PendingChangesPrivate::lists(const QObject* owner) const
{
    return manifests.isEmpty() || std::any_of(listed.cbegin(), listed.cend(), [owner](const QPointer<Manifest>& one) {
        return one && one == owner;
    });
}

QVector<QPointer<Manifest>> PendingChangesPrivate::scope() const
{
    if (!manifests.isEmpty())
        return listed;
    QVector<QPointer<Manifest>> all;
    for (Manifest* manifest : allManifests())
        all.append(manifest);
    return all;
}

PendingChangePtr PendingChangesPrivate::changeAt(int row) const
{
    const PendingChangePtr change = m_rows.value(row).change;
    return change && change->item && !change->isGone ? change : nullptr;
}

QVector<QPointer<KivData>> PendingChangesPrivate::waitingItems() const
{
    QVector<QPointer<KivData>> items;
    for (const Row& row : m_rows) {
        if (row.change->item && !row.change->isGone && !row.change->isOvertaken())
            items.append(row.change->item);
    }
    return items;
}

QVector<QPointer<KivData>> PendingChangesPrivate::waitingItems(const Manifest* manifest) const
{
    QVector<QPointer<KivData>> items;
    for (const Row& row : m_rows) {
        const PendingChange& change = *row.change;
        if (change.owner == manifest && change.item && !change.isGone && !change.isOvertaken())
            items.append(change.item);
    }
    return items;
}

// --- Rows ----------------------------------------------------------------------------------------

/// The place of a change, or the one that it would have.
int PendingChangesPrivate::rowOf(const PendingChangePtr& change) const
{
    const auto isBefore = [](const Row& row, quint64 serial) { return row.change->serial < serial; };
    return int(std::lower_bound(m_rows.cbegin(), m_rows.cend(), change->serial, isBefore) - m_rows.cbegin());
}

void PendingChangesPrivate::take(const QVector<PendingChangePtr>& changes)
{
    m_todo += changes;
    update();
}

void PendingChangesPrivate::update()
{
    if (m_isUpdating)
        return;
    m_isUpdating = true;
    const QPointer<PendingChanges> self(q);
    while (m_isResetDue || !m_todo.isEmpty()) {
        if (std::exchange(m_isResetDue, false)) {
            m_todo.clear();
            reset();
        } else {
            announceRows(std::exchange(m_todo, {}));
        }
        if (!self)
            return;
    }
    m_isUpdating = false;
    announceTotals();
}

void PendingChangesPrivate::reset()
{
    const QPointer<PendingChanges> self(q);
    q->beginResetModel();
    if (!self)
        return;
    m_rows.clear();
    m_overtaken = 0;
    const QVector<PendingChangePtr> changes = ledger->changes();
    for (const PendingChangePtr& change : changes) {
        if (!lists(change->owner))
            continue;
        m_rows.append({change, change->isOvertaken()});
        m_overtaken += int(change->isOvertaken());
    }
    q->endResetModel();
}

void PendingChangesPrivate::announceRows(const QVector<PendingChangePtr>& changes)
{
    const QPointer<PendingChanges> self(q);
    QVector<PendingChangePtr> removed;
    QVector<PendingChangePtr> added;
    QVector<int> changed;
    QSet<const PendingChange*> seen;
    for (const PendingChangePtr& change : changes) {
        if (seen.contains(change.get()))
            continue;
        seen.insert(change.get());
        const int row = rowOf(change);
        const bool isThere = row < m_rows.size() && m_rows.at(row).change == change;
        const bool belongs = !change->isGone && lists(change->owner);
        if (isThere && !belongs) {
            removed.append(change);
        } else if (isThere) {
            m_overtaken += int(change->isOvertaken()) - int(m_rows.at(row).isOvertaken);
            m_rows[row].isOvertaken = change->isOvertaken();
            changed.append(row);
        } else if (belongs) {
            added.append(change);
        }
    }
    std::sort(changed.begin(), changed.end());
    for (int i = 0; i < changed.size() && self; ++i) {
        const int first = changed.at(i);
        while (i + 1 < changed.size() && changed.at(i + 1) == changed.at(i) + 1)
            ++i;
        Q_EMIT q->dataChanged(q->index(first), q->index(changed.at(i)));
    }
    if (self)
        removeRows(removed);
    if (self)
        addRows(added);
}

void PendingChangesPrivate::removeRows(const QVector<PendingChangePtr>& changes)
{
    const QPointer<PendingChanges> self(q);
    QVector<int> rows;
    for (const PendingChangePtr& change : changes)
        rows.append(rowOf(change));
    std::sort(rows.begin(), rows.end());
    for (int i = rows.size() - 1; i >= 0 && self; --i) {
        const int last = rows.at(i);
        while (i > 0 && rows.at(i - 1) == rows.at(i) - 1)
            --i;
        const int first = rows.at(i);
        q->beginRemoveRows(QModelIndex(), first, last);
        if (!self)
            return;
        for (int row = first; row <= last; ++row)
            m_overtaken -= int(m_rows.at(row).isOvertaken);
        m_rows.remove(first, last - first + 1);
        q->endRemoveRows();
    }
}

void PendingChangesPrivate::addRows(const QVector<PendingChangePtr>& changes)
{
    const QPointer<PendingChanges> self(q);
    QVector<PendingChangePtr> ordered = changes;
    std::sort(ordered.begin(), ordered.end(), [](const auto& a, const auto& b) { return a->serial < b->serial; });
    for (int i = 0; i < ordered.size() && self; ++i) {
        const int first = rowOf(ordered.at(i));
        const int end = first < m_rows.size() ? i + 1 : ordered.size();
        q->beginInsertRows(QModelIndex(), first, first + end - i - 1);
        if (!self)
            return;
        for (int row = first; i < end; ++row, ++i) {
            m_rows.insert(row, {ordered.at(i), ordered.at(i)->isOvertaken()});
            m_overtaken += int(ordered.at(i)->isOvertaken());
        }
        --i;
        q->endInsertRows();
    }
}

/// A slot may delete the model.
void PendingChangesPrivate::announceTotals()
{
    const QPointer<PendingChanges> self(q);
    const Totals now {q->count(), q->waiting(), q->overtaken(), q->isChanging(), q->problem()};
    const Totals before = std::exchange(m_announced, now);
    if (now.count != before.count)
        Q_EMIT q->countChanged();
    if (self && now.waiting != before.waiting)
        Q_EMIT q->waitingChanged();
    if (self && now.overtaken != before.overtaken)
        Q_EMIT q->overtakenChanged();
    if (self && now.isChanging != before.isChanging)
        Q_EMIT q->isChangingChanged();
    if (self && now.problem != before.problem)
        Q_EMIT q->problemChanged();
}

// --- The model -----------------------------------------------------------------------------------

PendingChanges::PendingChanges(QObject* parent)
    : QAbstractListModel(parent)
    , d(std::make_unique<PendingChangesPrivate>(this))
{
    connect(d->ledger.get(), &PendingLedger::changed, this,
            [this](const QVector<PendingChangePtr>& changes) { d->take(changes); });
    connect(d->ledger.get(), &PendingLedger::stateChanged, this, [this] { d->update(); });
    d->reset();
    d->announceTotals();
}

PendingChanges::~PendingChanges() = default;

QVariantList PendingChanges::manifests() const
{
    return d->manifests;
}

void PendingChanges::setManifests(const QVariantList& manifests)
{
    QVector<QPointer<Manifest>> listed;
    for (const QVariant& manifest : manifests)
        listed.append(qobject_cast<Manifest*>(plainValue(manifest).value<QObject*>()));
    // A manifest may have the address of one that has gone.
    if (manifests == d->manifests && listed == d->listed)
        return;
    d->manifests = manifests;
    d->listed = listed;
    const QPointer<PendingChanges> self(this);
    d->requestReset();
    if (self)
        Q_EMIT manifestsChanged();
}

int PendingChanges::waiting() const
{
    return d->rowCount() - d->overtaken();
}

int PendingChanges::overtaken() const
{
    return d->overtaken();
}

bool PendingChanges::isChanging() const
{
    const QVector<QPointer<Manifest>> scope = d->scope();
    return std::any_of(scope.cbegin(), scope.cend(),
            [](const QPointer<Manifest>& manifest) { return manifest && manifest->isChanging(); });
}

QString PendingChanges::problem() const
{
    return d->ledger->problem([this](const QObject* owner) { return d->lists(owner); });
}

int PendingChanges::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : d->rowCount();
}

QVariant PendingChanges::data(const QModelIndex& index, int role) const
{
    const PendingChangePtr change = d->at(index.row());
    if (!change)
        return QVariant();
    switch (role) {
    case ItemRole:
        return QVariant::fromValue(change->item);
    case IdRole:
        return change->id;
    case Qt::DisplayRole:
    case LabelRole:
        return change->label;
    case OldValueRole:
        return change->oldValue;
    case NewValueRole:
        return change->newValue;
    case OldTextRole:
        return change->oldText;
    case NewTextRole:
        return change->newText;
    case StateRole:
        return int(change->state);
    case ProblemRole:
        return change->problem;
    case ServiceRole:
        return change->service;
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> PendingChanges::roleNames() const
{
    return {{ItemRole, "item"}, {IdRole, "id"}, {LabelRole, "label"}, {OldValueRole, "oldValue"},
            {NewValueRole, "newValue"}, {OldTextRole, "oldText"}, {NewTextRole, "newText"}, {StateRole, "state"},
            {ProblemRole, "problem"}, {ServiceRole, "service"}};
}

// --- Operations ----------------------------------------------------------------------------------

void PendingChanges::begin()
{
    const ChangeBatch batch;
    const QVector<QPointer<Manifest>> scope = d->scope();
    for (const QPointer<Manifest>& manifest : scope) {
        if (manifest)
            manifest->startChanges();
    }
}

bool PendingChanges::apply()
{
    const QPointer<PendingChanges> self(this);
    const ChangeBatch batch;
    const QVector<QPointer<Manifest>> scope = d->scope();
    QVector<QPointer<Manifest>> concerned;
    for (const QPointer<Manifest>& manifest : scope) {
        if (manifest && (manifest->isChanging() || !d->waitingItems(manifest).isEmpty()))
            concerned.append(manifest);
    }
    bool isAccepted = true;
    for (const QPointer<Manifest>& manifest : qAsConst(concerned)) {
        if (!self || !isAccepted)
            break;
        if (!manifest)
            continue;
        setChanging(manifest, false);
        isAccepted = d->send(manifest);
    }
    // What is corrected now has to wait too.
    for (const QPointer<Manifest>& manifest : qAsConst(concerned)) {
        if (manifest && !isAccepted)
            setChanging(manifest, true);
    }
    return isAccepted;
}

/// Sends what waits for the service of the manifest. False if anything still waits.
bool PendingChangesPrivate::send(Manifest* manifest) const
{
    const QVector<QPointer<KivData>> items = waitingItems(manifest);
    bool areAllThere = true;
    for (const QPointer<KivData>& item : items) {
        if (KivDataPrivate::of(item)->item)
            continue;
        areAllThere = false;
        if (const PendingChangePtr change = ledger->find(item))
            ledger->setProblem(change,
                    PendingChanges::tr("The service %1 cannot be reached. The change waits until it returns.")
                            .arg(change->service));
    }
    return sendChanges(manifest, items) && areAllThere;
}

void PendingChanges::revertAll()
{
    const ChangeBatch batch;
    const QVector<QPointer<Manifest>> scope = d->scope();
    const QVector<QPointer<KivData>> items = d->waitingItems();
    for (const QPointer<Manifest>& manifest : scope) {
        if (manifest)
            setChanging(manifest, false);
    }
    for (const QPointer<KivData>& item : items) {
        if (item)
            KivDataPrivate::of(item)->withdraw();
    }
}

bool PendingChanges::revert(int row)
{
    const PendingChangePtr change = d->changeAt(row);
    if (!change || change->isOvertaken())
        return false;
    KivDataPrivate::of(change->item)->withdraw();
    return true;
}

bool PendingChanges::dismiss(int row)
{
    const PendingChangePtr change = d->changeAt(row);
    if (!change || !change->isOvertaken())
        return false;
    d->ledger->remove(change);
    ChangeWatch::flush();
    return true;
}

bool PendingChanges::setAgain(int row)
{
    const PendingChangePtr change = d->changeAt(row);
    if (!change || !change->isOvertaken())
        return false;
    const std::shared_ptr<PendingLedger> ledger = d->ledger;
    const ChangeBatch batch;
    const QString problem = d->set(change->item, change->newValue);
    const bool isSet = !change->isOvertaken();
    if (!isSet && !change->isGone)
        ledger->setProblem(change, problem);
    return isSet;
}

QString PendingChanges::enter(KivData* item, const QVariant& value)
{
    if (!item)
        return QString();
    if (item->isReadOnly() && toManifest(item->parent()))
        return tr("The entry was rejected.");
    const ChangeBatch batch;
    begin();
    return d->set(item, value);
}

/// Sets the item in a transaction of its manifest. Returns why the item did not accept the value.
QString PendingChangesPrivate::set(KivData* item, const QVariant& value) const
{
    Manifest* const manifest = toManifest(item->parent());
    if (manifest && !manifest->isChanging())
        manifest->startChanges();
    KivDataPrivate* const parts = KivDataPrivate::of(item);
    const QVariant served = parts->reportedValue();
    if (manifest && meansSame(readValue(plainValue(value), served.userType()), served)) {
        parts->withdraw();
        return QString();
    }
    const QPointer<KivData> self(item);
    QString problem;
    const QMetaObject::Connection hearing
            = QObject::connect(item, &KivData::errorChanged, item, [&problem](const QString&, const QString& words) {
                  problem = words.isEmpty() ? PendingChanges::tr("The entry was rejected.") : words;
              });
    item->setValue(value);
    if (self) {
        QObject::disconnect(hearing);
        parts->revertToReported();
    }
    return problem;
}

} // namespace uiutils
