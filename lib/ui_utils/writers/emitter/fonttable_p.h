#pragma once

#include <QByteArray>
#include <QtEndian>

namespace uiutils::pdf {

/// Reads a table of a font. What lies outside of it is 0.
class FontTable
{
public:
    explicit FontTable(const QByteArray& bytes)
        : m_bytes(bytes)
    {
    }

    qint64 size() const { return m_bytes.size(); }
    quint8 u8(qint64 at) const { return read<quint8>(at); }
    quint16 u16(qint64 at) const { return read<quint16>(at); }
    qint16 i16(qint64 at) const { return read<qint16>(at); }
    quint32 u32(qint64 at) const { return read<quint32>(at); }
    qint32 i32(qint64 at) const { return read<qint32>(at); }
    /// Empty if the table does not hold all of it.
    QByteArray bytes(qint64 at, qint64 length) const
    {
        return holds(at, length) ? m_bytes.mid(int(at), int(length)) : QByteArray();
    }

private:
    bool holds(qint64 at, qint64 length) const { return at >= 0 && length >= 0 && at <= size() - length; }

    template<typename Number> Number read(qint64 at) const
    {
        return holds(at, sizeof(Number)) ? qFromBigEndian<Number>(m_bytes.constData() + at) : Number(0);
    }

    QByteArray m_bytes;
};

} // namespace uiutils::pdf
