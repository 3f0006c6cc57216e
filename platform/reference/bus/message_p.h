#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <utility>

struct sd_bus_message;

namespace kiv::bus {

/// A message, shared by its copies. Texts that are no UTF-8 never arrive.
class Message
{
public:
    Message() = default;
    /// Takes over a reference.
    explicit Message(sd_bus_message* message)
        : m_message(message)
    {
    }
    ~Message();
    Message(const Message& other);
    Message(Message&& other) noexcept { std::swap(m_message, other.m_message); }
    Message& operator=(Message other) noexcept
    {
        std::swap(m_message, other.m_message);
        return *this;
    }

    explicit operator bool() const { return m_message; }
    sd_bus_message* raw() const { return m_message; }

    bool isCall() const;
    bool isSignal(const char* interface, const char* member) const;
    /// The reply to a call that failed, also when it timed out.
    bool isError() const;
    QString errorName() const;
    QString errorText() const;
    QByteArray sender() const;
    QByteArray path() const;
    QByteArray interface() const;
    QByteArray member() const;
    QByteArray signature() const;

private:
    sd_bus_message* m_message = nullptr;
};

/// Appends values to a message that has not been sent. What cannot be appended makes the message unfit, see isGood().
class Writer
{
public:
    explicit Writer(const Message& message)
        : m_message(message)
    {
    }

    void byte(quint8 value);
    void boolean(bool value);
    void int32(qint32 value);
    void uint32(quint32 value);
    void uint64(quint64 value);
    void real(double value);
    void text(const QString& value);
    /// All of an array of numbers at once.
    void reals(const QVector<double>& values);
    /// 'a' array, 'r' struct, 'v' variant or 'e' dictionary entry, with the signature of what is in it.
    void open(char kind, const char* contents);
    void close();
    bool isGood() const { return m_status >= 0; }

private:
    void note(int status) { m_status = m_status < 0 ? m_status : status; }

    const Message m_message;
    int m_status = 0;
};

/// Reads values of a message in their order. What is not there reads as a neutral value and makes isGood() false.
class Reader
{
public:
    explicit Reader(const Message& message)
        : m_message(message)
    {
    }

    quint8 byte();
    bool boolean();
    qint32 int32();
    quint32 uint32();
    quint64 uint64();
    double real();
    QString text();
    QVector<double> reals();
    /// Enters a container as Writer::open() names them; false when the next value is no such one. At the end of an
    /// array of containers false, and the reader stays good.
    bool enter(char kind, const char* contents);
    /// The same without harm when something else comes next.
    bool enterIfNext(char kind, const char* contents);
    void leave();
    bool atEnd();
    /// The signature of what the variant that comes next holds; empty when none comes next.
    QByteArray variantContents();
    void skip(const char* signature);
    bool isGood() const { return m_status >= 0; }

private:
    template<class Value> Value basic(char type);
    void note(int status) { m_status = m_status < 0 ? m_status : status; }

    const Message m_message;
    int m_status = 0;
};

} // namespace kiv::bus
