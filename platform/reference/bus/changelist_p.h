#pragma once

#include <QVector>

#include <vector>

namespace kiv::bus {

/// An item by its number, 0 for the service itself, and the fields of it that changed, a bit for each code.
struct ChangedItem
{
    using Fields = quint32;

    quint32 number = 0;
    Fields fields = 0;
};

/// Notes what changes within a turn of the event loop, each item once.
class ChangeCollector
{
public:
    /// From now on there are items with numbers below `end`. Only changes of the service itself stay.
    void setEnd(int end);
    void note(quint32 number, ChangedItem::Fields fields);
    /// In the order of the numbers.
    QVector<ChangedItem> take();

private:
    /// By number.
    std::vector<ChangedItem::Fields> m_fields;
    std::vector<quint32> m_changed;
};

/// What a client still has to hear of, in the order of the numbers.
class ChangeList
{
public:
    bool isEmpty() const { return m_next == m_items.size(); }
    /// With the fields that have not been removed; at least one.
    ChangedItem first() const;
    /// Removes fields of the first item, and the item with the last of them.
    void removeFirst(ChangedItem::Fields fields);
    /// Adds what changed later, in the order of the numbers.
    void unite(const QVector<ChangedItem>& later);
    /// Leaves what concerns the service itself.
    void forgetItems();

private:
    /// Shared by all clients that have heard of everything before.
    QVector<ChangedItem> m_items;
    int m_next = 0;
    /// Fields of the next item that were removed.
    ChangedItem::Fields m_removed = 0;
};

} // namespace kiv::bus
