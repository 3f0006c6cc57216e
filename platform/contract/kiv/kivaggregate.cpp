#include <kiv/kivaggregate.h>

#include <algorithm>

KivAggregate::KivAggregate(const QVector<QPair<QByteArray, QVariant>>& members)
{
    m_members.reserve(members.size());
    for (const auto& member : members) {
        if (indexOf(member.first) < 0)
            m_members.append(member);
    }
}

QList<QByteArray> KivAggregate::getPropertyNames() const
{
    QList<QByteArray> names;
    names.reserve(m_members.size());
    for (const auto& member : m_members)
        names.append(member.first);
    return names;
}

QVariant KivAggregate::getPropertyVariant(const QByteArray& name) const
{
    const int index = indexOf(name);
    return index < 0 ? QVariant() : m_members.at(index).second;
}

bool KivAggregate::setPropertyFromVariant(const QByteArray& name, const QVariant& value)
{
    const int index = indexOf(name);
    if (index < 0)
        return false;
    m_members[index].second = value;
    return true;
}

QVariant KivAggregate::toVariant() const
{
    QVariantMap map;
    for (const auto& member : m_members)
        map.insert(QString::fromUtf8(member.first), member.second);
    return map;
}

int KivAggregate::indexOf(const QByteArray& name) const
{
    const auto found = std::find_if(
            m_members.cbegin(), m_members.cend(), [&](const auto& member) { return member.first == name; });
    return found == m_members.cend() ? -1 : int(found - m_members.cbegin());
}

KivListAggregate::KivListAggregate(const QList<QByteArray>& names, const QVector<QVariantList>& rows)
{
    // Copies of the first stay where they were; a later one could never be read.
    for (const QByteArray& name : names) {
        if (!m_names.contains(name))
            m_names.append(name);
    }
    const bool namesAreUnique = m_names.size() == names.size();
    m_rows.reserve(rows.size());
    for (const QVariantList& row : rows) {
        if (namesAreUnique && row.size() == m_names.size()) {
            m_rows.append(row);
            continue;
        }
        QVariantList fitted;
        for (const QByteArray& name : qAsConst(m_names))
            fitted.append(row.value(names.indexOf(name)));
        m_rows.append(fitted);
    }
}

QVariant KivListAggregate::getPropertyVariant(const QByteArray& name, int row) const
{
    const int column = m_names.indexOf(name);
    if (row < 0 || row >= m_rows.size() || column < 0)
        return QVariant();
    return m_rows.at(row).at(column);
}

QVariant KivListAggregate::toVariant() const
{
    QVariantList list;
    list.reserve(m_rows.size());
    for (const QVariantList& row : m_rows) {
        QVariantMap map;
        for (int column = 0; column < m_names.size(); ++column)
            map.insert(QString::fromUtf8(m_names.at(column)), row.at(column));
        list.append(map);
    }
    return list;
}
