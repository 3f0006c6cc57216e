#include "core/durablefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

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

/// A file that did not exist before, beside the target, removed again unless it was renamed.
class TemporarySibling
{
public:
    /// An empty `name` makes up one that nobody has.
    TemporarySibling(const QString& target, const QString& name)
    {
        if (name.isEmpty())
            createUnderNewName(QFileInfo(target).path());
        else
            createUnder(name);
        m_created = m_fd >= 0;
        if (m_created)
            takeModeOf(target);
    }
    ~TemporarySibling()
    {
        if (m_fd >= 0)
            ::close(m_fd);
        if (m_created && !m_renamed)
            ::unlink(QFile::encodeName(m_path).constData());
    }
    Q_DISABLE_COPY_MOVE(TemporarySibling)

    bool isOpen() const { return m_fd >= 0; }

    bool write(const QByteArray& contents)
    {
        qint64 done = 0;
        while (done < contents.size()) {
            const ssize_t n = ::write(m_fd, contents.constData() + done, size_t(contents.size() - done));
            if (n < 0 && errno == EINTR)
                continue;
            if (n <= 0)
                return false;
            done += n;
        }
        return true;
    }

    bool sync()
    {
        int result = 0;
        do {
            result = ::fsync(m_fd);
        } while (result != 0 && errno == EINTR);
        return result == 0;
    }

    bool close()
    {
        const int fd = m_fd;
        m_fd = -1;
        // After EINTR the descriptor is gone on Linux, and what was synced is safe.
        return ::close(fd) == 0 || errno == EINTR;
    }

    bool renameTo(const QString& target)
    {
        m_renamed
                = ::rename(QFile::encodeName(m_path).constData(), QFile::encodeName(target).constData()) == 0;
        return m_renamed;
    }

private:
    void createUnderNewName(const QString& folder)
    {
        // Names of 255 bytes are legal: the temporary one must not grow out of the target's own.
        const QString stem = folder + QLatin1String("/.uiutils-");
        do {
            m_path = stem + QString::number(QRandomGenerator::global()->generate(), 36) + QLatin1String(".tmp");
            open();
        } while (m_fd < 0 && (errno == EEXIST || errno == EINTR));
    }

    /// What lies there was left by a power cut. A folder stays, and is an error.
    void createUnder(const QString& name)
    {
        m_path = name;
        do {
            ::unlink(QFile::encodeName(m_path).constData());
            open();
        } while (m_fd < 0 && errno == EINTR);
    }

    void open()
    {
        m_fd = ::open(QFile::encodeName(m_path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    }

    /// While the file is still empty, so that what only some may read is never open to others. Not an error when it fails:
    /// the file systems of memory sticks know no modes.
    void takeModeOf(const QString& target)
    {
        struct stat old {};
        if (::lstat(QFile::encodeName(target).constData(), &old) == 0 && S_ISREG(old.st_mode))
            ::fchmod(m_fd, old.st_mode & 0777);
    }

    QString m_path;
    int m_fd = -1;
    bool m_created = false;
    bool m_renamed = false;
};

/// Makes the rename survive a power cut. Not an error when it fails: the file is whole under its name either way.
void syncFolder(const QString& folder)
{
    const int fd = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    ::fsync(fd);
    ::close(fd);
}

QString failure(const char* text, const QString& path, const QString& reason)
{
    return QCoreApplication::translate("DurableFile", text).arg(path, reason);
}

} // namespace

bool writeFileDurably(const QString& path, const QByteArray& contents, QString* error, const QString& temporary)
{
    QString ignored;
    QString& message = error ? *error : ignored;

    // The system would take what stands before it for the whole path.
    if (path.contains(QChar(QChar::Null))) {
        message = failure(QT_TRANSLATE_NOOP("DurableFile", "Cannot write %1: %2"),
                QString(path).replace(QChar(QChar::Null), QChar(QChar::ReplacementCharacter)),
                QCoreApplication::translate("DurableFile", "The path holds a NUL character"));
        return false;
    }
    TemporarySibling file(path, temporary);
    if (!file.isOpen()) {
        message = failure(QT_TRANSLATE_NOOP("DurableFile", "Cannot create a file in the folder of %1: %2"), path,
                systemError());
        return false;
    }
    if (!file.write(contents) || !file.sync() || !file.close()) {
        message = failure(QT_TRANSLATE_NOOP("DurableFile", "Cannot write %1: %2"), path, systemError());
        return false;
    }
    if (!file.renameTo(path)) {
        message = failure(QT_TRANSLATE_NOOP("DurableFile", "Cannot replace %1: %2"), path, systemError());
        return false;
    }
    syncFolder(QFileInfo(path).path());
    return true;
}

} // namespace uiutils
