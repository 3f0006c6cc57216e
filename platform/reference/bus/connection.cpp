#include "connection_p.h"

#include <QPointer>
#include <QSocketNotifier>

#include <systemd/sd-bus.h>
#include <systemd/sd-id128.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>
#include <poll.h>

namespace kiv::bus {

namespace {

/// How many messages one turn of the event loop takes in; the page wants to be drawn between them.
constexpr int mostMessages = 64;

quint64 microseconds(int milliseconds)
{
    // Zero would mean the library's own timeout.
    return milliseconds > 0 ? quint64(milliseconds) * 1000 : 1;
}

/// Holds signals back: one that came would end the waiting for an answer, and the answer would be lost.
class HeldSignals
{
public:
    HeldSignals()
    {
        sigset_t all;
        sigfillset(&all);
        // A fault of the program itself is still its own.
        for (const int fault : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGTRAP})
            sigdelset(&all, fault);
        pthread_sigmask(SIG_BLOCK, &all, &m_before);
    }
    ~HeldSignals() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    Q_DISABLE_COPY_MOVE(HeldSignals)

private:
    sigset_t m_before {};
};

/// Without one, the library's own answer would end the connection.
bool hasMachineId()
{
    sd_id128_t id;
    return sd_id128_get_machine(&id) >= 0;
}

/// Milliseconds until a time of the monotonic clock, rounded up.
int millisecondsUntil(quint64 time)
{
    timespec now {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    const quint64 passed = quint64(now.tv_sec) * 1000 * 1000 + quint64(now.tv_nsec) / 1000;
    return time <= passed ? 0 : int(qMin<quint64>((time - passed) / 1000 + 1, 1000 * 1000));
}

} // namespace

// --- Connecting ----------------------------------------------------------------------------------

/// A call whose answer somebody waits for.
struct Connection::Pending
{
    Connection* connection = nullptr;
    QPointer<QObject> context;
    Answer answer;
    /// Keeps itself until the library has no more use of it.
    std::shared_ptr<Pending> self;
};

/// What the library calls, in its midst: only notes what has arrived.
struct Connection::Callbacks
{
    static int onMessage(sd_bus_message* message, void* self, sd_bus_error* error)
    {
        auto* connection = static_cast<Connection*>(self);
        const Message arrived(sd_bus_message_ref(message));
        // Who asks whether anybody is there is answered by the library.
        if (arrived.isCall() && arrived.interface() == "org.freedesktop.DBus.Peer")
            return arrived.member() == "GetMachineId" && !hasMachineId()
                    ? sd_bus_error_set(error, SD_BUS_ERROR_FILE_NOT_FOUND, "This machine has no id.")
                    : 0;
        connection->m_arrived.push_back({arrived, nullptr});
        return arrived.isCall() ? 1 : 0;
    }

    static int onReply(sd_bus_message* message, void* data, sd_bus_error*)
    {
        const std::shared_ptr<Pending> pending = static_cast<Pending*>(data)->self;
        if (pending)
            pending->connection->m_arrived.push_back({Message(sd_bus_message_ref(message)), pending});
        return 1;
    }
};

Connection::Connection(QObject* parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Connection::pump);
}

Connection::~Connection()
{
    close();
}

bool Connection::open(Bus bus, QString* problem)
{
    close();
    ++m_openings;
    const int status = bus == Bus::System ? sd_bus_open_system(&m_bus) : sd_bus_open_user(&m_bus);
    if (status < 0) {
        m_bus = nullptr;
        *problem = QString::fromUtf8(std::strerror(-status));
        return false;
    }
    // Only who watches its own end closes in an orderly way; a host goes on when the bus is gone.
    sd_bus_set_exit_on_disconnect(m_bus, 0);
    sd_bus_add_filter(m_bus, &m_filter, &Callbacks::onMessage, this);
    const int fd = sd_bus_get_fd(m_bus);
    m_readable = std::make_unique<QSocketNotifier>(fd, QSocketNotifier::Read);
    m_writable = std::make_unique<QSocketNotifier>(fd, QSocketNotifier::Write);
    connect(m_readable.get(), &QSocketNotifier::activated, this, &Connection::pump);
    connect(m_writable.get(), &QSocketNotifier::activated, this, &Connection::pump);
    pumpSoon();
    return true;
}

bool Connection::isReady() const
{
    return m_isReady && m_bus && sd_bus_is_ready(m_bus) > 0;
}

void Connection::close()
{
    m_timer.stop();
    // A notifier may be the one that called.
    for (auto* notifier : {&m_readable, &m_writable}) {
        if (!*notifier)
            continue;
        (*notifier)->setEnabled(false);
        notifier->release()->deleteLater();
    }
    m_isReady = false;
    m_uniqueName.clear();
    m_arrived.clear();
    sd_bus_slot_unref(m_filter);
    m_filter = nullptr;
    if (m_bus)
        sd_bus_close(m_bus);
    sd_bus_unref(m_bus);
    m_bus = nullptr;
}

// --- Sending -------------------------------------------------------------------------------------

Message Connection::newCall(
        const QByteArray& destination, const QByteArray& path, const char* interface, const char* member) const
{
    sd_bus_message* message = nullptr;
    if (!m_bus
            || sd_bus_message_new_method_call(
                       m_bus, &message, destination.constData(), path.constData(), interface, member)
                    < 0)
        return Message();
    // Nobody is started by being asked.
    sd_bus_message_set_auto_start(message, 0);
    return Message(message);
}

Message Connection::newSignal(
        const QByteArray& destination, const QByteArray& path, const char* interface, const char* member) const
{
    sd_bus_message* message = nullptr;
    if (!m_bus || sd_bus_message_new_signal(m_bus, &message, path.constData(), interface, member) < 0)
        return Message();
    sd_bus_message_set_destination(message, destination.constData());
    return Message(message);
}

Message Connection::newReply(const Message& call)
{
    sd_bus_message* message = nullptr;
    if (sd_bus_message_get_expect_reply(call.raw()) > 0)
        sd_bus_message_new_method_return(call.raw(), &message);
    return Message(message);
}

void Connection::expectNoReply(const Message& call)
{
    sd_bus_message_set_expect_reply(call.raw(), 0);
}

bool Connection::send(const Message& message)
{
    if (!m_bus || !message)
        return false;
    const bool isSent = sd_bus_send(m_bus, message.raw(), nullptr) >= 0;
    watch();
    return isSent;
}

void Connection::call(const Message& message, int timeoutMs, QObject* context, const Answer& answer)
{
    auto pending = std::make_shared<Pending>();
    pending->connection = this;
    pending->context = context;
    pending->answer = answer;
    sd_bus_slot* slot = nullptr;
    if (!m_bus || !message
            || sd_bus_call_async(
                       m_bus, &slot, message.raw(), &Callbacks::onReply, pending.get(), microseconds(timeoutMs))
                    < 0) {
        m_arrived.push_back({Message(), pending});
        pumpSoon();
        return;
    }
    pending->self = pending;
    // The slot goes when the answer came, or with the bus, and the call with the slot.
    sd_bus_slot_set_destroy_callback(slot, [](void* data) { static_cast<Pending*>(data)->self.reset(); });
    sd_bus_slot_set_floating(slot, 1);
    sd_bus_slot_unref(slot);
    watch();
}

Message Connection::callBlocking(const Message& message, int timeoutMs)
{
    if (!isReady() || !message)
        return Message();
    sd_bus_message* reply = nullptr;
    sd_bus_error error = SD_BUS_ERROR_NULL;
    const HeldSignals held;
    const int status = sd_bus_call(m_bus, message.raw(), microseconds(timeoutMs), &error, &reply);
    if (status < 0) {
        sd_bus_message* failure = nullptr;
        if (!sd_bus_error_is_set(&error))
            sd_bus_error_set_errno(&error, status);
        sd_bus_message_new_method_error(message.raw(), &failure, &error);
        reply = failure;
    }
    sd_bus_error_free(&error);
    // What arrived meanwhile lies in the library, and the descriptor says nothing of it.
    pumpSoon();
    return Message(reply);
}

void Connection::reject(const Message& call, const char* name, const QString& text)
{
    sd_bus_message* message = nullptr;
    const QByteArray utf8 = text.toUtf8();
    const sd_bus_error error = SD_BUS_ERROR_MAKE_CONST(name, utf8.constData());
    if (sd_bus_message_get_expect_reply(call.raw()) > 0
            && sd_bus_message_new_method_error(call.raw(), &message, &error) >= 0)
        send(Message(message));
}

void Connection::match(const QByteArray& rule)
{
    if (!m_bus)
        return;
    // The filter hears everything; only the bus has to know.
    const Message message
            = newCall("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "AddMatch");
    Writer(message).text(QString::fromLatin1(rule));
    send(message);
}

bool Connection::isLoss(const Message& reply)
{
    // A call that ran out of time fails in another way: its error is the library's own, and has no sender either.
    return reply.errorName() == QLatin1String(SD_BUS_ERROR_NO_REPLY);
}

bool Connection::isTimeout(const Message& reply)
{
    const QString name = reply.errorName();
    return name == QLatin1String(SD_BUS_ERROR_NO_REPLY) || name == QLatin1String(SD_BUS_ERROR_TIMEOUT)
            || name == QLatin1String("System.Error.ETIMEDOUT");
}

// --- Receiving -----------------------------------------------------------------------------------

void Connection::pumpSoon()
{
    if (m_isPumpQueued)
        return;
    m_isPumpQueued = true;
    QMetaObject::invokeMethod(
            this,
            [this] {
                m_isPumpQueued = false;
                pump();
            },
            Qt::QueuedConnection);
}

void Connection::pump()
{
    const QPointer<Connection> self(this);
    const int opening = m_openings;
    int status = 0;
    if (m_bus) {
        for (int i = 0; i < mostMessages; ++i) {
            status = sd_bus_process(m_bus, nullptr);
            if (status <= 0)
                break;
        }
    }
    const bool isInterrupted = status == -EINTR || status == -EAGAIN;
    const bool isLost = m_bus && status < 0 && !isInterrupted;
    if (status > 0 || isInterrupted)
        pumpSoon();
    if (m_bus && !isLost && checkReady())
        Q_EMIT ready();
    if (self)
        handOn();
    if (!self)
        return;
    if (isLost && m_bus && opening == m_openings) {
        close();
        Q_EMIT lost();
        return;
    }
    watch();
}

/// Whether it has become ready just now.
bool Connection::checkReady()
{
    const char* name = nullptr;
    if (m_isReady || sd_bus_is_ready(m_bus) <= 0 || sd_bus_get_unique_name(m_bus, &name) < 0)
        return false;
    m_uniqueName = name;
    m_isReady = true;
    return true;
}

/// Who hears of a message may run an event loop, which hands on the next ones, or delete the connection.
void Connection::handOn()
{
    const QPointer<Connection> self(this);
    while (self && !m_arrived.empty()) {
        const Arrival arrival = std::move(m_arrived.front());
        m_arrived.pop_front();
        deliver(arrival);
    }
}

void Connection::deliver(const Arrival& arrival)
{
    if (arrival.pending) {
        if (arrival.pending->context)
            arrival.pending->answer(arrival.message);
    } else if (arrival.message.isCall()) {
        Q_EMIT callReceived(arrival.message);
    } else if (sd_bus_message_is_signal(arrival.message.raw(), nullptr, nullptr) > 0) {
        Q_EMIT signalReceived(arrival.message);
    } else {
        Q_EMIT lateReplyReceived(arrival.message.sender());
    }
}

/// Lets the event loop wait for what the library waits for.
void Connection::watch()
{
    if (!m_bus || !m_writable)
        return;
    const int events = sd_bus_get_events(m_bus);
    if (events < 0) {
        pumpSoon();
        return;
    }
    m_writable->setEnabled(events & POLLOUT);
    uint64_t time = UINT64_MAX;
    if (sd_bus_get_timeout(m_bus, &time) >= 0 && time != UINT64_MAX)
        m_timer.start(millisecondsUntil(time));
    else
        m_timer.stop();
}

} // namespace kiv::bus
