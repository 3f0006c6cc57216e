#pragma once

#include <kiv/kiv_export.h>

#include <QByteArray>
#include <QList>
#include <QVariant>
#include <QVector>

/// An aggregate: named members, each with a value, in a fixed order. Names are UTF-8. A plain value: copies are
/// independent and cheap.
class KIV_EXPORT KivAggregate
{
public:
    KivAggregate() = default;
    /// Of members with the same name only the first counts.
    explicit KivAggregate(const QVector<QPair<QByteArray, QVariant>>& members);

    /// The names of the members in order.
    QList<QByteArray> getPropertyNames() const;

    /// The member's value; invalid without such a member.
    QVariant getPropertyVariant(const QByteArray& name) const;

    /// Sets a member to `value` without conversion; the service converts it when it receives the aggregate. Returns
    /// false, and changes nothing, when there is no such member.
    bool setPropertyFromVariant(const QByteArray& name, const QVariant& value);

    /// The aggregate as one value, as KIVClientInterface::setItem() takes it: a QVariantMap.
    QVariant toVariant() const;

private:
    int indexOf(const QByteArray& name) const;

    QVector<QPair<QByteArray, QVariant>> m_members;
};

/// A table: rows of named members. A plain value: copies are independent and cheap.
class KIV_EXPORT KivListAggregate
{
public:
    KivListAggregate() = default;
    /// Every row has one value for each name; missing values are invalid, surplus values are discarded.
    KivListAggregate(const QList<QByteArray>& names, const QVector<QVariantList>& rows);

    /// The names of the members in order, also of a table without rows.
    QList<QByteArray> getPropertyNames() const { return m_names; }

    /// Number of rows.
    int getSize() const { return m_rows.size(); }

    /// The member of a row (counted from 0); invalid outside the table.
    QVariant getPropertyVariant(const QByteArray& name, int row) const;

    /// The table as one value: a QVariantList with a QVariantMap for each row.
    QVariant toVariant() const;

private:
    QList<QByteArray> m_names;
    QVector<QVariantList> m_rows;
};
