#pragma once

#include <QByteArray>
#include <QtEndian>

/// What the loopback client and server exchange: requests of a header and a payload, one after another.
namespace uiutils::demo::protocol {

enum Kind : quint32 {
    /// The complete request, header and payload, is returned unchanged.
    Echo = 1,
    /// The payload is discarded; when its last byte has arrived, the header is returned.
    Sink = 2,
};

constexpr quint32 magic = 0x55694c42;
constexpr int headerSize = 16;
/// Echoes are held in memory, so a larger one is rejected.
constexpr quint64 largestEcho = 1 << 20;

struct Header
{
    Kind kind = Echo;
    /// Bytes that follow the header.
    quint64 payload = 0;
};

inline QByteArray encode(const Header& header)
{
    QByteArray bytes(headerSize, Qt::Uninitialized);
    qToBigEndian<quint32>(magic, bytes.data());
    qToBigEndian<quint32>(header.kind, bytes.data() + 4);
    qToBigEndian<quint64>(header.payload, bytes.data() + 8);
    return bytes;
}

/// False when the bytes are not a header that the server can serve.
inline bool decode(const QByteArray& bytes, Header* header)
{
    if (bytes.size() != headerSize || qFromBigEndian<quint32>(bytes.constData()) != magic)
        return false;
    const quint32 kind = qFromBigEndian<quint32>(bytes.constData() + 4);
    header->kind = Kind(kind);
    header->payload = qFromBigEndian<quint64>(bytes.constData() + 8);
    return kind == Sink || (kind == Echo && header->payload <= largestEcho);
}

} // namespace uiutils::demo::protocol
