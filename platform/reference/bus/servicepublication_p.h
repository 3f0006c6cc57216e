#pragma once

#include "connection_p.h"
#include "serviceproperties_p.h"
#include "subscriber_p.h"

#include <embedded/embeddedservice.h>

#include "embedded/itemstate_p.h"
#include "embedded/requests_p.h"

#include <QPointer>
#include <QTimer>

#include <map>

namespace kiv::bus {

/// One service on the bus: numbers its items, sends what changes to those who subscribed and carries out what they ask.
class ServicePublication final : public QObject, private embedded::ItemWatcher
{
    Q_OBJECT

public:
    ServicePublication(embedded::EmbeddedService* service, Connection* connection, QObject* parent);
    ~ServicePublication() override;

    embedded::EmbeddedService* service() const { return m_service; }
    QByteArray busName() const { return m_busName; }
    QByteArray objectPath() const { return m_objectPath; }

    /// A call to the object of the service.
    void handle(const Message& call);
    /// A connection to the bus ended.
    void forget(const QByteArray& client) { m_subscribers.erase(client); }
    /// All connections ended with ours.
    void forgetAll();

    /// The bus name is ours.
    bool isOwner = false;
    /// What service() was when it was there.
    const embedded::EmbeddedService* const key;

Q_SIGNALS:
    void reachableChanged();

private:
    using StatePtr = embedded::ItemStore::StatePtr;
    using Request = std::function<embedded::Outcome(embedded::ServiceData&)>;
    /// What the answer to a call says of its outcome.
    enum class Answer { Nothing, Text, Everything };
    using Method = void (ServicePublication::*)(const Message&);

    void fieldChanged(embedded::ItemState* state, embedded::ItemField field) override;
    void numberItems();
    void onItemsChanged();
    void onError(const QString& text);
    void changeSoon();
    void sendChanges();
    void serve(const QByteArray& client);
    void sendErrors(const QByteArray& client, Subscriber& subscriber);
    int appendChange(Writer& writer, quint32 number, embedded::ItemField field) const;
    bool sendMessage(const QByteArray& client, Subscriber& subscriber);

    void getItems(const Message& call);
    void subscribe(const Message& call);
    void unsubscribe(const Message& call);
    void acknowledge(const Message& call);
    void setItem(const Message& call);
    void sendAction(const Message& call) { carryOutAction(call, Answer::Text); }
    void sendBatch(const Message& call) { carryOutAction(call, Answer::Everything); }
    void carryOutAction(const Message& call, Answer answer);
    void getProperty(const Message& call) { answerGet(*m_connection, *m_service, call); }
    void getProperties(const Message& call) { answerGetAll(*m_connection, *m_service, call); }
    void setProperty(const Message& call) { answerSet(*m_connection, call); }
    void introspect(const Message& call) { answerIntrospect(*m_connection, call); }
    void carryOutLater(const Message& call, int delayMs, Answer answer, const Request& request);

    const QPointer<embedded::EmbeddedService> m_service;
    const QPointer<Connection> m_connection;
    const QByteArray m_busName;
    const QByteArray m_objectPath;
    quint64 m_generation = 0;
    /// By number; null for number 0.
    QVector<StatePtr> m_items;
    ChangeCollector m_changes;
    std::map<QByteArray, Subscriber> m_subscribers;
    QTimer m_timer;
    bool m_wasReachable = false;
    int m_requests = 0;
};

} // namespace kiv::bus
