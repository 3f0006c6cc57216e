#include "base/durablefile_p.h"

#include "base/temporaries_p.h"
#include "base/temporarysibling_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace uiutils {

namespace {

QString systemError()
{
    return qt_error_string(errno);
}

int openToRead(const QString& path, int flags)
{
    int fd = -1;
    do {
        fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | flags);
    } while (fd < 0 && errno == EINTR);
    return fd;
}

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DurableFile)
};

/// The system would take the part before a NUL character for the complete path.
bool hasNul(const QString& path, QString& message)
{
    if (!path.contains(QChar(QChar::Null)))
        return false;
    const QString shown = QString(path).replace(QChar(QChar::Null), QChar(QChar::ReplacementCharacter));
    message = Texts::tr("Cannot write %1: %2").arg(shown, Texts::tr("The path holds a NUL character"));
    return true;
}

NewFile write(
        const QString& path, const QByteArray& contents, const QString& temporary, bool mayReplace, QString& message)
{
    if (hasNul(path, message))
        return NewFile::Failed;
    removeStaleTemporaries(QFileInfo(path).path());
    TemporarySibling file(path, temporary);
    if (!file.isOpen()) {
        const QString reason = systemError();
        message = Texts::tr("Cannot create a file in the folder of %1: %2").arg(path, reason);
        return NewFile::Failed;
    }
    if (!file.write(contents) || !file.sync()) {
        const QString reason = systemError();
        message = Texts::tr("Cannot write %1: %2").arg(path, reason);
        return NewFile::Failed;
    }
    // Open, and therefore locked, until it has its name: otherwise a cleaning process would take it for stale.
    if (!file.renameTo(path, mayReplace)) {
        const bool isTaken = !mayReplace && errno == EEXIST;
        const QString reason = systemError();
        message = Texts::tr("Cannot replace %1: %2").arg(path, reason);
        return isTaken ? NewFile::Taken : NewFile::Failed;
    }
    if (!file.close()) {
        const QString reason = systemError();
        message = Texts::tr("Cannot write %1: %2").arg(path, reason);
        return NewFile::Failed;
    }
    if (syncNameOf(path))
        return NewFile::Written;
    const QString reason = systemError();
    message = Texts::tr("Cannot make sure that %1 survives a power cut: %2").arg(path, reason);
    return NewFile::Failed;
}

} // namespace

bool syncNameOf(const QString& member)
{
    int fd = openToRead(QFileInfo(member).path() + QLatin1Char('/'), O_DIRECTORY);
    // A folder may allow writing and not listing: then its complete file system is synced.
    const bool isClosed = fd < 0 && errno == EACCES;
    if (isClosed)
        fd = openToRead(member, 0);
    if (fd < 0)
        return false;
    int result = 0;
    do {
        result = isClosed ? ::syncfs(fd) : ::fsync(fd);
    } while (result != 0 && errno == EINTR);
    const int reason = errno;
    ::close(fd);
    errno = reason;
    return result == 0 || reason == EINVAL || reason == EOPNOTSUPP;
}

bool writeFileDurably(const QString& path, const QByteArray& contents, QString* error, const QString& temporary)
{
    QString ignored;
    return write(path, contents, temporary, true, error ? *error : ignored) == NewFile::Written;
}

NewFile writeNewFileDurably(const QString& path, const QByteArray& contents, QString* error)
{
    QString ignored;
    return write(path, contents, QString(), false, error ? *error : ignored);
}

bool writeFileForNow(const QString& path, const QByteArray& contents)
{
    TemporarySibling file(path);
    return file.isOpen() && file.write(contents) && file.renameTo(path) && file.close();
}

bool makeFolderDurably(const QString& path)
{
    const QString folder = QDir::cleanPath(path);
    if (QFileInfo(folder).isDir())
        return true;
    const QString above = QFileInfo(folder).path();
    if (folder.contains(QChar(QChar::Null)) || above == folder || !makeFolderDurably(above))
        return false;
    const QByteArray name = QFile::encodeName(folder);
    if (::mkdir(name.constData(), 0777) != 0)
        return QFileInfo(folder).isDir();
    if (syncNameOf(folder))
        return true;
    ::rmdir(name.constData());
    return false;
}

} // namespace uiutils
