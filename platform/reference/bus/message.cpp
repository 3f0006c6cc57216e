#include "message_p.h"

#include <systemd/sd-bus.h>

#include <cerrno>
#include <cstring>

namespace kiv::bus {

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
    return error ? QString::fromUtf8(error->name) : QString();
}

QString Message::errorText() const
{
    const sd_bus_error* error = m_message ? sd_bus_message_get_error(m_message) : nullptr;
    return error ? QString::fromUtf8(error->message) : QString();
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
    return QString::fromUtf8(basic<const char*>(SD_BUS_TYPE_STRING));
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

} // namespace kiv::bus
