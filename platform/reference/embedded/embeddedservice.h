#pragma once

#include <embedded/embedded_export.h>

#include <QMap>
#include <QObject>
#include <QStringList>
#include <QVariant>

class KIVClientItem;

namespace kiv::embedded {

class EmbeddedItem;
struct ServiceDescription;

/// The service's own side of a service that lives in this process: what publishes and drives its items.
/// The back end that it was published on owns it.
class KIVEMBEDDED_EXPORT EmbeddedService : public QObject
{
    Q_OBJECT

public:
    ~EmbeddedService() override;

    QString name() const { return m_name; }

    /// Ids in ascending string order.
    QStringList itemIds(const QString& prefix = QString()) const;

    /// The item, owned by the service, or null.
    KIVClientItem* item(const QString& id) const;

    /// Reports a new value of an item of any category. Returns false when there is no such item. Clients hear
    /// KIVClientItem::valueChanged() before the call returns when the value differs from the old one.
    bool setValue(const QString& id, const QVariant& value);

    /// Sets an attribute of an item, which nobody is told of. Returns false when there is no such item.
    bool setAttribute(const QString& id, const QString& name, const QVariant& value);

private:
    friend class EmbeddedBackend;
    EmbeddedService(const ServiceDescription& description, QObject* parent);

    QString m_name;
    QMap<QString, EmbeddedItem*> m_items;
};

} // namespace kiv::embedded
