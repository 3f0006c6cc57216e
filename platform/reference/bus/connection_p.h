#pragma once

#include "message_p.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>

struct sd_bus;
struct sd_bus_slot;
class QSocketNotifier;

namespace kiv::bus {

/// Which bus: that of the session or that of the system.
enum class Bus { Session, System };

/// A connection to a bus, on the event loop of the thread that makes it. Only this class and Message know the library
/// that carries it.
///
/// Nothing but callBlocking() waits: connecting, sending and receiving go on while the event loop runs. What arrives is
/// handed on outside of the carrying library, in the order of arrival, so that who hears of it may do anything: run an
/// event loop, make a blocking call, delete this object.
class Connection : public QObject
{
    Q_OBJECT

public:
    /// Hears the answer; isError() tells failures and timeouts from replies.
    using Answer = std::function<void(const Message& reply)>;

    explicit Connection(QObject* parent = nullptr);
    ~Connection() override;

    /// Begins to connect. Returns false, with the reason, when there is no such bus.
    bool open(Bus bus, QString* problem);
    void close();

    /// Whether messages can be sent: connected, and known to the bus.
    bool isReady() const;
    /// Empty until it is ready.
    QByteArray uniqueName() const { return m_uniqueName; }

    Message newCall(
            const QByteArray& destination, const QByteArray& path, const char* interface, const char* member) const;
    Message newSignal(
            const QByteArray& destination, const QByteArray& path, const char* interface, const char* member) const;
    /// Empty when the caller wants no reply.
    static Message newReply(const Message& call);
    static void expectNoReply(const Message& call);

    /// Sends without waiting; false when it could not be queued.
    bool send(const Message& message);
    /// Sends and lets `answer` hear of the reply, at the latest after `timeoutMs`. Nobody hears after `context` is
    /// gone.
    void call(const Message& message, int timeoutMs, QObject* context, const Answer& answer);
    /// Sends and waits for the reply for at most `timeoutMs` milliseconds. What else arrives meanwhile is handed on
    /// later.
    Message callBlocking(const Message& message, int timeoutMs);
    /// Answers a call with an error.
    void reject(const Message& call, const char* name, const QString& text);

    /// Asks the bus for the signals that match `rule`.
    void match(const QByteArray& rule);

    /// Whether what callBlocking() returned is the bus's own error for a peer that went without an answer.
    static bool isLoss(const Message& reply);
    /// Whether the message is the carrying library's own error for a reply that did not come in time.
    static bool isTimeout(const Message& reply);

Q_SIGNALS:
    void ready();
    /// The connection ended; close() has been called.
    void lost();
    void signalReceived(const kiv::bus::Message& signal);
    /// Somebody calls one of our objects. Each call has to be answered.
    void callReceived(const kiv::bus::Message& call);
    /// An answer that nobody waits for any more.
    void lateReplyReceived(const QByteArray& sender);

private:
    struct Pending;
    struct Callbacks;
    struct Arrival
    {
        Message message;
        std::shared_ptr<Pending> pending;
    };

    void pump();
    void pumpSoon();
    void handOn();
    void deliver(const Arrival& arrival);
    bool checkReady();
    void watch();

    sd_bus* m_bus = nullptr;
    sd_bus_slot* m_filter = nullptr;
    /// Counts what open() began: a slot may open anew.
    int m_openings = 0;
    bool m_isReady = false;
    bool m_isPumpQueued = false;
    QByteArray m_uniqueName;
    std::deque<Arrival> m_arrived;
    std::unique_ptr<QSocketNotifier> m_readable;
    std::unique_ptr<QSocketNotifier> m_writable;
    QTimer m_timer;
};

} // namespace kiv::bus
