#include "itemstore_p.h"

#include "embeddeditem_p.h"

#include <algorithm>

namespace kiv::embedded {

ItemStore::~ItemStore()
{
    close();
}

QStringList ItemStore::sortedIds(const QString& prefix) const
{
    QStringList ids;
    for (auto it = m_sorted.lowerBound(prefix); it != m_sorted.cend() && it.key().startsWith(prefix); ++it)
        ids += it.key();
    return ids;
}

QVector<ItemStore::StatePtr> ItemStore::inOrder() const
{
    QVector<StatePtr> states;
    states.reserve(m_states.size());
    std::copy(m_states.cbegin(), m_states.cend(), std::back_inserter(states));
    std::sort(states.begin(), states.end(),
            [](const StatePtr& a, const StatePtr& b) { return a->position < b->position; });
    return states;
}

void ItemStore::setWatcher(ItemWatcher* watcher)
{
    m_watcher = watcher;
    for (const StatePtr& state : qAsConst(m_states))
        state->watcher = watcher;
}

void ItemStore::add(const StatePtr& state)
{
    state->position = ++m_lastPosition;
    state->watcher = m_watcher;
    m_states.insert(state->description.id, state);
    m_sorted.insert(state->description.id, state.get());
}

void ItemStore::remove(const QString& id)
{
    const StatePtr state = m_states.take(id);
    m_sorted.remove(id);
    if (!state)
        return;
    state->watcher = nullptr;
    KIVClientItem* item = state->item;
    state->item = nullptr;
    delete item;
}

KIVClientItem* ItemStore::object(const QString& id)
{
    const StatePtr state = m_objects ? find(id) : nullptr;
    if (state && !state->item)
        state->item = createItem(state, m_objects.get());
    return state ? state->item : nullptr;
}

void ItemStore::open()
{
    if (!m_objects)
        m_objects = std::make_unique<QObject>();
}

void ItemStore::close()
{
    const std::unique_ptr<QObject> doomed = std::move(m_objects);
    if (!doomed)
        return;
    for (const StatePtr& state : qAsConst(m_states))
        state->item = nullptr;
}

void ItemStore::clear()
{
    close();
    m_sorted.clear();
    m_states.clear();
}

} // namespace kiv::embedded
