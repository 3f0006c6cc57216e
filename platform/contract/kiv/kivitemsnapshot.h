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
    struct Item
    {
        QString id;
        QString name;
        QString label;
        QVariant value;
        /// The value as a user reads it, with its unit.
        QString valueString;
    };

    /// An empty snapshot.
    KIVItemSnapshot() = default;

    /// Takes the items whose id begins with `prefix`, in the order of their ids. Empty for a null client.
    explicit KIVItemSnapshot(const KIVClientInterface* client, const QString& prefix = QString());

    /// Sorts the items by label, as the user's locale sorts texts; items of one label by id.
    void labelSort();

    const QVector<Item>& items() const { return m_items; }

private:
    QVector<Item> m_items;
};
