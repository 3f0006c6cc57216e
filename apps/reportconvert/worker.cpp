#include "worker.h"

#include "conversion.h"
#include "signals.h"

#include <array>
#include <cerrno>
#include <sys/socket.h>

namespace uiutils::convert {

void sendLine(int channel, const QByteArray& line)
{
    const QByteArray bytes = line + '\n';
    int sent = 0;
    while (sent < bytes.size()) {
        const ssize_t count = ::send(channel, bytes.constData() + sent, size_t(bytes.size() - sent), MSG_NOSIGNAL);
        if (count < 0 && errno != EINTR)
            return;
        sent += int(qMax<ssize_t>(0, count));
    }
}

bool takeLines(int channel, QByteArray* pending, QList<QByteArray>* lines)
{
    std::array<char, 4096> buffer {};
    const ssize_t count = ::recv(channel, buffer.data(), buffer.size(), 0);
    if (count <= 0)
        return count < 0 && errno == EINTR;
    pending->append(buffer.data(), int(count));
    *lines = pending->split('\n');
    *pending = lines->takeLast();
    return true;
}

void serve(int channel, Conversion& conversion, const Plan& plan)
{
    sendLine(channel, QByteArray(1, answers::ready));
    QByteArray pending;
    QList<QByteArray> numbers;
    while (waitFor(channel, POLLIN) && takeLines(channel, &pending, &numbers)) {
        for (const QByteArray& number : qAsConst(numbers)) {
            const bool isDone = conversion.convert(plan.jobs.at(number.toInt()));
            const QByteArray written = QByteArray::number(conversion.takeWritten());
            sendLine(channel, QByteArray(1, answers::done) + (isDone ? '1' : '0') + ' ' + written);
        }
    }
}

} // namespace uiutils::convert
