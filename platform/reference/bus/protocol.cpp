#include "protocol_p.h"

#include "busnames.h"

namespace kiv::bus {

namespace {

constexpr int longestName = 255;

bool isPlain(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9');
}

/// A name as one element of a bus name or an object path, which may not begin with a digit in the former.
QByteArray encoded(const QString& name)
{
    const QByteArray utf8 = name.toUtf8();
    QByteArray element;
    for (const char byte : utf8) {
        const bool isFirstDigit = element.isEmpty() && byte >= '0' && byte <= '9';
        if (isPlain(byte) && !isFirstDigit)
            element += byte;
        else
            element += '_' + QByteArray(1, byte).toHex();
    }
    return element;
}

} // namespace

QByteArray busName(const QString& service)
{
    const QByteArray name = QByteArray(namePrefix.data(), namePrefix.size()) + encoded(service);
    return service.isEmpty() || name.size() > longestName ? QByteArray() : name;
}

QString serviceBusName(const QString& service)
{
    return QString::fromLatin1(busName(service));
}

QByteArray objectPath(const QString& service)
{
    QByteArray path = busName(service);
    path.replace('.', '/');
    return path.isEmpty() ? path : '/' + path;
}

QString serviceOfBusName(const QByteArray& name)
{
    if (!name.startsWith(namePrefix.data()))
        return QString();
    const QByteArray element = name.mid(namePrefix.size());
    QByteArray utf8;
    for (int i = 0; i < element.size(); ++i) {
        if (element.at(i) != '_') {
            utf8 += element.at(i);
            continue;
        }
        utf8 += QByteArray::fromHex(element.mid(i + 1, 2));
        i += 2;
    }
    // Names that are spelt in another way than ours are somebody else's.
    const QString service = QString::fromUtf8(utf8);
    return busName(service) == name ? service : QString();
}

} // namespace kiv::bus
