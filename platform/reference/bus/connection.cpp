#include "connection_p.h"

#include <QPointer>
#include <QSocketNotifier>
#include <QVector>

#include <systemd/sd-bus.h>

#include <cerrno>
#include <cstring>
#include <ctime>
#include <poll.h>

namespace kiv::bus {

namespace {

/// How many messages one turn of the event loop takes in; the page wants to be drawn between them.
constexpr int mostMessages = 64;

QString textOf(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

quint64 microseconds(int milliseconds)
{
    // Zero would mean the library's own time-out.
    return milliseconds > 0 ? quint64(milliseconds) * 1000 : 1;
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

// --- Messages ------------------------------------------------------------------------------------

Message::~Message()
{
    sd_bus_message_unref(m_message);
}

Message::Message(const Message& other)
    : m_message(sd_bus_message_ref(other.m_message))
{
}

bool Message::isCall() const
{
    return m_message && sd_bus_message_is_method_call(m_message, nullptr, nullptr) > 0;
}

bool Message::isSignal(const char* interface, const char* member) const
{
    return m_message && sd_bus_message_is_signal(m_message, interface, member) > 0;
}

bool Message::isError() const
{
    return !m_message || sd_bus_message_is_method_error(m_message, nullptr) > 0;
}

QString Message::errorName() const
{
    const sd_bus_error* error = m_message ? sd_bus_message_get_error(m_message) : nullptr;
    return error ? textOf(error->name) : QString();
}

QString Message::errorText() const
{
    const sd_bus_error* error = m_message ? sd_bus_message_get_error(m_message) : nullptr;
    return error ? textOf(error->message) : QString();
}

QByteArray Message::sender() const
{
    return sd_bus_message_get_sender(m_message);
}

QByteArray Message::path() const
{
    return sd_bus_message_get_path(m_message);
}

QByteArray Message::interface() const
{
    return sd_bus_message_get_interface(m_message);
}

QByteArray Message::member() const
{
    return sd_bus_message_get_member(m_message);
}

QByteArray Message::signature() const
{
    return sd_bus_message_get_signature(m_message, 1);
}

// --- Writing -------------------------------------------------------------------------------------

void Writer::byte(quint8 value)
{
    note(sd_bus_message_append_basic(m_message.raw(), SD_BUS_TYPE_BYTE, &value));
}

void Writer::boolean(bool value)
{
    const int number = value;
    note(sd_bus_message_append_basic(m_message.raw(), SD_BUS_TYPE_BOOLEAN, &number));
}

void Writer::int32(qint32 value)
{
    note(sd_bus_message_append_basic(m_message.raw(), SD_BUS_TYPE_INT32, &value));
}

void Writer::uint32(quint32 value)
{
    note(sd_bus_message_append_basic(m_message.raw(), SD_BUS_TYPE_UINT32, &value));
}

void Writer::uint64(quint64 value)
{
    note(sd_bus_message_append_basic(m_message.raw(), SD_BUS_TYPE_UINT64, &value));
}

void Writer::real(double value)
{
    note(sd_bus_message_append_basic(m_message.raw(), SD_BUS_TYPE_DOUBLE, &value));
}

void Writer::text(const QString& value)
{
    const QByteArray utf8 = value.toUtf8();
    // What follows a NUL would be lost.
    note(size_t(utf8.size()) == std::strlen(utf8.constData())
                    ? sd_bus_message_append_basic(m_message.raw(), SD_BUS_TYPE_STRING, utf8.constData())
                    : -EINVAL);
}

void Writer::reals(const QVector<double>& values)
{
    note(sd_bus_message_append_array(
            m_message.raw(), SD_BUS_TYPE_DOUBLE, values.constData(), size_t(values.size()) * sizeof(double)));
}

void Writer::open(char kind, const char* contents)
{
    note(sd_bus_message_open_container(m_message.raw(), kind, contents));
}

void Writer::close()
{
    note(sd_bus_message_close_container(m_message.raw()));
}

// --- Reading -------------------------------------------------------------------------------------

template<class Value> Value Reader::basic(char type)
{
    Value value {};
    const int status = isGood() ? sd_bus_message_read_basic(m_message.raw(), type, &value) : 0;
    note(status == 0 ? -ENXIO : status);
    return isGood() ? value : Value {};
}

quint8 Reader::byte()
{
    return basic<quint8>(SD_BUS_TYPE_BYTE);
}

bool Reader::boolean()
{
    return basic<int>(SD_BUS_TYPE_BOOLEAN);
}

qint32 Reader::int32()
{
    return basic<qint32>(SD_BUS_TYPE_INT32);
}

quint32 Reader::uint32()
{
    return basic<quint32>(SD_BUS_TYPE_UINT32);
}

quint64 Reader::uint64()
{
    return basic<quint64>(SD_BUS_TYPE_UINT64);
}

double Reader::real()
{
    return basic<double>(SD_BUS_TYPE_DOUBLE);
}

QString Reader::text()
{
    return textOf(basic<const char*>(SD_BUS_TYPE_STRING));
}

QVector<double> Reader::reals()
{
    const void* data = nullptr;
    size_t size = 0;
    note(isGood() ? sd_bus_message_read_array(m_message.raw(), SD_BUS_TYPE_DOUBLE, &data, &size) : 0);
    if (!isGood() || size == 0)
        return {};
    QVector<double> values(int(size / sizeof(double)));
    std::memcpy(values.data(), data, size_t(values.size()) * sizeof(double));
    return values;
}

bool Reader::enter(char kind, const char* contents)
{
    if (!isGood())
        return false;
    const int status = sd_bus_message_enter_container(m_message.raw(), kind, contents);
    note(status);
    return status > 0;
}

bool Reader::enterIfNext(char kind, const char* contents)
{
    const int status = isGood() ? sd_bus_message_enter_container(m_message.raw(), kind, contents) : 0;
    note(status == -ENXIO ? 0 : status);
    return status > 0;
}

void Reader::leave()
{
    if (isGood())
        note(sd_bus_message_exit_container(m_message.raw()));
}

bool Reader::atEnd()
{
    return !isGood() || sd_bus_message_at_end(m_message.raw(), 0) != 0;
}

QByteArray Reader::variantContents()
{
    char type = 0;
    const char* contents = nullptr;
    const int status = isGood() ? sd_bus_message_peek_type(m_message.raw(), &type, &contents) : 0;
    return status > 0 && type == SD_BUS_TYPE_VARIANT ? QByteArray(contents) : QByteArray();
}

void Reader::skip(const char* signature)
{
    if (isGood())
        note(sd_bus_message_skip(m_message.raw(), signature));
}

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
    static int onMessage(sd_bus_message* message, void* self, sd_bus_error*)
    {
        auto* connection = static_cast<Connection*>(self);
        const Message arrived(sd_bus_message_ref(message));
        // Who asks whether anybody is there is answered by the library.
        if (arrived.isCall() && arrived.interface() == "org.freedesktop.DBus.Peer")
            return 0;
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
    const int status = bus == Bus::System ? sd_bus_open_system(&m_bus) : sd_bus_open_user(&m_bus);
    if (status < 0) {
        m_bus = nullptr;
        *problem = textOf(std::strerror(-status));
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

void Connection::refuse(const Message& call, const char* name, const QString& text)
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
    int status = 0;
    if (m_bus) {
        for (int i = 0; i < mostMessages; ++i) {
            status = sd_bus_process(m_bus, nullptr);
            if (status <= 0)
                break;
        }
    }
    const bool isLost = m_bus && status < 0;
    if (status > 0)
        pumpSoon();
    if (m_bus && !isLost && checkReady())
        Q_EMIT ready();
    if (self)
        handOn();
    if (!self)
        return;
    if (isLost) {
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
