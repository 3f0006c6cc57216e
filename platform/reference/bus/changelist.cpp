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

void ChangeList::unite(const QVector<ChangedItem>& later)
{
    if (isEmpty()) {
        m_items = later;
        m_next = 0;
        return;
    }
    QVector<ChangedItem> all;
    all.reserve(m_items.size() - m_next + later.size());
    std::merge(m_items.cbegin() + m_next, m_items.cend(), later.cbegin(), later.cend(), std::back_inserter(all),
            [](const ChangedItem& a, const ChangedItem& b) { return a.number < b.number; });
    m_items.clear();
    m_next = 0;
    for (const ChangedItem& item : qAsConst(all)) {
        if (!m_items.isEmpty() && m_items.constLast().number == item.number)
            m_items.last().fields |= item.fields;
        else
            m_items.append(item);
    }
}

void ChangeList::forgetItems()
{
    const bool hasOwn = !isEmpty() && first().number == 0;
    m_items = hasOwn ? QVector<ChangedItem> {first()} : QVector<ChangedItem>();
    m_next = 0;
}

} // namespace kiv::bus
