#pragma once

#include "itemstate_p.h"

#include <QHash>
#include <QMap>
#include <QObject>
#include <QStringList>

namespace kiv::embedded {

/// The items of one service: found by id, listed by id and in the order of the service.
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

    /// Adds an item behind the others; its id must be a new one.
    void add(const StatePtr& state);
    void remove(const QString& id);

    /// The object that clients have of an item, made when the first asks; null unless the store is open.
    KIVClientItem* object(const QString& id);

    bool isOpen() const { return bool(m_objects); }
    void open();
    /// Destroys the objects; the states stay. Whoever hears of an end finds none of the objects any more.
    void close();
    /// Closes, and forgets the states.
    void clear();

private:
    QHash<QString, StatePtr> m_states;
    QMap<QString, ItemState*> m_sorted;
    quint64 m_lastPosition = 0;
    ItemWatcher* m_watcher = nullptr;
    /// The objects' parent: it deletes many of them in one go.
    std::unique_ptr<QObject> m_objects;
};

} // namespace kiv::embedded
