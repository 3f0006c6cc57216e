#pragma once

#include "connection_p.h"
#include "itemchanges_p.h"
#include "servicecalls_p.h"

#include <QObject>
#include <QSet>
#include <QVector>

namespace kiv::bus {

class BusClient;

/// One service on the bus as this process knows it: its items, kept as they were last heard of, and the calls to it. It
/// stays when the service goes, and takes the next owner of the name.
class RemoteService final : public QObject
{
    Q_OBJECT

public:
    RemoteService(const QString& name, Connection* connection, QObject* parent);
    ~RemoteService() override;

    QString name() const { return m_name; }
    QByteArray busName() const { return m_busName; }
    BusClient* sharedClient() const { return m_sharedClient; }
    const embedded::ItemStore& items() const { return m_items; }
    KIVClientItem* object(const QString& id) { return m_items.object(id); }
    bool isReachable() const { return m_items.isOpen(); }
    /// Whether it is known to have no owner, or its items have been read, or it was given up.
    bool isSettled() const { return m_isOwnerKnown && !m_isLoading; }
    bool isMounted(const QString& path) const { return m_mounts.contains(path); }

    /// The process that has the name now; empty for none.
    QByteArray owner() const { return m_owner; }
    void setOwner(const QByteArray& owner);
    /// Reads the items of the owner, which may be believed.
    void load();
    /// Leaves the owner alone, with the reason in words for those who call it.
    void giveUp(const QString& reason);
    /// A signal of the owner's.
    void hear(const Message& signal);
    /// The owner said something: it is awake.
    void noteAlive() { m_calls.noteAlive(); }

    // Calls wait for at most `timeoutMs` milliseconds.
    embedded::Outcome setItem(const QString& id, const QVariant& value, int timeoutMs);
    embedded::Outcome sendAction(const QString& id, const QString& argument, int timeoutMs);

Q_SIGNALS:
    void itemsChanged();
    void errorReported(const QString& text);
    /// It has become reachable, or was given up, or is gone.
    void settled();

private:
    using StatePtr = embedded::ItemStore::StatePtr;

    /// The items while they are being read, in the order of their numbers.
    struct Snapshot
    {
        quint64 generation = 0;
        QVector<embedded::ItemDescription> items;
    };

    bool closeItems();
    Message newCall(const char* interface, const char* member) const;
    void ask(const Message& call, const Connection::Answer& answer);
    void onProperties(const Message& reply);
    void onSubscribed(const Message& reply);
    void onPage(const Message& reply);
    void readSnapshot();
    void askForPage(quint32 from);
    bool readPage(Reader& reader);
    void adopt();
    bool removeOthers(const QVector<embedded::ItemDescription>& items);
    QVector<ItemChange> takeItems(const QVector<embedded::ItemDescription>& items);
    void hearChanges(const Message& signal);
    int readChange(Reader& reader, QVector<ItemChange>* changes);
    void countMessage(int bytes);
    embedded::Outcome gone() const;

    const QString m_name;
    const QByteArray m_busName;
    const QByteArray m_path;
    Connection* const m_connection;
    BusClient* const m_sharedClient;
    ServiceCalls m_calls;
    QByteArray m_owner;
    /// Counts owners: an answer that one left behind is not the next one's.
    int m_session = 0;
    /// Counts the readings of all items.
    int m_readings = 0;
    embedded::ItemStore m_items;
    /// By number; null for number 0, the service itself.
    QVector<StatePtr> m_numbered;
    quint64 m_generation = 0;
    quint64 m_serial = 0;
    Snapshot m_snapshot;
    bool m_isOwnerKnown = false;
    bool m_isReading = false;
    bool m_isLoading = false;
    int m_unacknowledged = 0;
    int m_unacknowledgedBytes = 0;
    QSet<QString> m_mounts;
    QString m_refusal;
};

} // namespace kiv::bus
