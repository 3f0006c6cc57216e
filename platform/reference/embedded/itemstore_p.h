#pragma once

#include "itemstate_p.h"

#include <QHash>
#include <QMap>
#include <QObject>
#include <QStringList>

namespace kiv::embedded {

/// The items of one service: looked up by id, listed by id and in the service's order.
class ItemStore
{
public:
    using StatePtr = std::shared_ptr<ItemState>;

    ItemStore() = default;
    ~ItemStore();
    Q_DISABLE_COPY_MOVE(ItemStore)

    StatePtr find(const QString& id) const { return m_states.value(id); }
    QStringList sortedIds(const QString& prefix) const;
    QVector<StatePtr> inOrder() const;

    int size() const { return m_states.size(); }

    /// Lets somebody watch the items, also those to come; null for nobody.
    void setWatcher(ItemWatcher* watcher);

    /// Adds an item after the others; its id must be new.
    void add(const StatePtr& state);
    void remove(const QString& id);

    /// The clients' object of an item, created on the first call; null unless the store is open.
    KIVClientItem* object(const QString& id);

    bool isOpen() const { return bool(m_objects); }
    void open();
    /// Destroys the objects; the states stay. A slot that hears of a destruction finds none of the objects.
    void close();
    /// Closes, and forgets the states.
    void clear();

private:
    QHash<QString, StatePtr> m_states;
    QMap<QString, ItemState*> m_sorted;
    quint64 m_lastPosition = 0;
    ItemWatcher* m_watcher = nullptr;
    /// The parent of the objects: deleting it deletes many of them in one step.
    std::unique_ptr<QObject> m_objects;
};

} // namespace kiv::embedded
