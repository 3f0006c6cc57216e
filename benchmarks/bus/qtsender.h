#pragma once

#include "load.h"
#include "workload.h"

#include <QDBusConnection>
#include <QObject>

#include <memory>

namespace bench {

/// The service over QtDBus: items and their changes as maps of maps.
class QtSender : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.uiutils.bench.Peer")

public:
    QtSender();
    ~QtSender() override;

    void prepare(int items);
    void change(int items);
    /// In one message for each turn, or for each change.
    void load(bool isSingle);

public Q_SLOTS:
    bench::ItemMaps items() const { return m_items; }

private:
    void send(const ItemMaps& changes);
    void sendTurn(int first, bool isSingle);

    QDBusConnection m_bus;
    ItemMaps m_items;
    QVector<QString> m_ids;
    std::unique_ptr<Load> m_load;
    int m_changes = 0;
};

} // namespace bench
