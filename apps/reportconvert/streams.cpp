#include "streams.h"

#include "signals.h"
#include "texts.h"

#include <kiv/plovjsondocument.h>

#include <array>
#include <cerrno>
#include <climits>
#include <poll.h>
#include <unistd.h>

namespace uiutils::convert {

namespace {

bool fail(const QString& reason, QString* error)
{
    *error = reason;
    return false;
}

/// Why a write to standard output failed, and what to do.
QString outputError()
{
    if (errno == EPIPE)
        return Texts::tr("Cannot write to standard output: its reader has closed it.");
    return Texts::tr("Cannot write to standard output: %1. Name a file with --output.").arg(qt_error_string(errno));
}

bool isPassing(int error)
{
    return error == EINTR || error == EAGAIN || error == EWOULDBLOCK;
}

} // namespace

bool copyStandardInput(QIODevice& target, QString* error)
{
    std::array<char, 65536> buffer {};
    qint64 total = 0;
    while (waitFor(STDIN_FILENO, POLLIN)) {
        const ssize_t count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
        if (count < 0 && isPassing(errno))
            continue;
        if (count < 0)
            return fail(Texts::tr("cannot be read: %1").arg(qt_error_string(errno)), error);
        if (count == 0)
            return true;
        total += count;
        if (total > PlovJsonDocument::maximumFileSize) {
            return fail(Texts::tr("larger than the %1 MiB that a document may have")
                                .arg(PlovJsonDocument::maximumFileSize / 1024 / 1024),
                    error);
        }
        if (target.write(buffer.data(), count) != count)
            return fail(Texts::tr("cannot be written to a temporary file: %1").arg(target.errorString()), error);
    }
    return false;
}

bool writeStandardOutput(const QByteArray& bytes, QString* error)
{
    qint64 done = 0;
    while (done < bytes.size()) {
        if (!waitFor(STDOUT_FILENO, POLLOUT))
            return false;
        // A ready pipe takes at least this much at once, so that no write blocks where a signal could not end it.
        const ssize_t count
                = ::write(STDOUT_FILENO, bytes.constData() + done, size_t(qMin<qint64>(PIPE_BUF, bytes.size() - done)));
        if (count < 0 && isPassing(errno))
            continue;
        if (count < 0)
            return fail(outputError(), error);
        done += count;
    }
    // Some file systems report only now that there was no space.
    return ::close(STDOUT_FILENO) == 0 || fail(outputError(), error);
}

} // namespace uiutils::convert
