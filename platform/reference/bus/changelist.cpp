#include "changelist_p.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kiv::bus {

void ChangeCollector::setEnd(int end)
{
    const ChangedItem::Fields own = m_fields.empty() ? 0 : m_fields.front();
    m_fields.assign(size_t(end), 0);
    m_changed.clear();
    if (own != 0)
        note(0, own);
}

void ChangeCollector::note(quint32 number, ChangedItem::Fields fields)
{
    ChangedItem::Fields& noted = m_fields.at(number);
    if (noted == 0)
        m_changed.push_back(number);
    noted |= fields;
}

QVector<ChangedItem> ChangeCollector::take()
{
    std::sort(m_changed.begin(), m_changed.end());
    QVector<ChangedItem> items;
    items.reserve(int(m_changed.size()));
    for (const quint32 number : m_changed)
        items.append({number, std::exchange(m_fields.at(number), 0)});
    m_changed.clear();
    return items;
}

ChangedItem ChangeList::first() const
{
    const ChangedItem& item = m_items.at(m_next);
    return {item.number, item.fields & ~m_removed};
}

void ChangeList::removeFirst(ChangedItem::Fields fields)
{
    m_removed |= fields;
    if (first().fields != 0)
        return;
    ++m_next;
    m_removed = 0;
}

void ChangeList::unite(const QVector<ChangedItem>& later)
{
    QVector<ChangedItem> earlier = m_items.mid(m_next);
    if (!earlier.isEmpty())
        earlier.first() = first();
    m_items = later;
    m_next = 0;
    m_removed = 0;
    if (earlier.isEmpty())
        return;
    m_items.clear();
    auto next = later.cbegin();
    for (ChangedItem item : qAsConst(earlier)) {
        while (next != later.cend() && next->number < item.number)
            m_items.append(*next++);
        if (next != later.cend() && next->number == item.number)
            item.fields |= next++->fields;
        m_items.append(item);
    }
    std::copy(next, later.cend(), std::back_inserter(m_items));
}

void ChangeList::forgetItems()
{
    const bool hasOwn = !isEmpty() && first().number == 0;
    m_items = hasOwn ? QVector<ChangedItem> {first()} : QVector<ChangedItem>();
    m_next = 0;
    m_removed = 0;
}

} // namespace kiv::bus
