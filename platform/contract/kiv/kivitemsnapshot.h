#pragma once

#include <kiv/kiv_export.h>

#include <QString>
#include <QVariant>
#include <QVector>

class KIVClientInterface;

/// The items of a service as they were at one moment. It keeps copies and no pointers, so it outlives the service.
class KIV_EXPORT KIVItemSnapshot
{
public:
    /// What is kept of an item.
    struct Item
    {
        /// The full id.
        QString id;
        /// See KIVClientItem::getName().
        QString name;
        /// What the item is called on a screen.
        QString label;
        /// The value; invalid for an item without one.
        QVariant value;
        /// The value as a user reads it, with its unit.
        QString valueString;
    };

    /// An empty snapshot.
    KIVItemSnapshot() = default;

    /// Copies the items whose id begins with `prefix`, in the order of their ids. Empty for a null client.
    explicit KIVItemSnapshot(const KIVClientInterface* client, const QString& prefix = QString());

    /// Sorts the items by label, in the order of the user's locale; items with the same label by id.
    void labelSort();

    /// The items, in the order of their ids or of labelSort().
    const QVector<Item>& items() const { return m_items; }

private:
    QVector<Item> m_items;
};
