#include <kiv/filesystemusage.h>

#include "mounttable_p.h"

#include <kiv/kivbackend.h>
#include <kiv/kivnotification.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

#include <optional>
#include <sys/statvfs.h>

namespace {

std::optional<struct statvfs> fileSystemAt(const QString& directory)
{
    QString place = QFileInfo(directory).absoluteFilePath();
    struct statvfs system = {};
    while (::statvfs(QFile::encodeName(place).constData(), &system) != 0) {
        const int slash = place.lastIndexOf(QLatin1Char('/'));
        if (slash < 0 || place == QLatin1String("/"))
            return std::nullopt;
        place = slash == 0 ? QStringLiteral("/") : place.left(slash);
    }
    return system;
}

/// One dialog is enough, however often a save is tried. It is deleted with the application.
void notifyUser(const QString& message)
{
    static QPointer<KIVNotification> notification;
    delete notification;
    notification = new KIVNotification(QCoreApplication::instance());
    notification->setLongLabel(QCoreApplication::translate("FileSystemUsage", "Not Enough Space"));
    notification->setMsg(message);
    notification->setError();
    notification->notifyDialog();
}

bool isInSystemTable(const QString& path)
{
    QFile file(QStringLiteral("/proc/self/mountinfo"));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray table = file.readAll();
    if (kiv::listsMount(table, QFile::encodeName(path)))
        return true;
    const QString target = QFileInfo(path).canonicalFilePath();
    return !target.isEmpty() && kiv::listsMount(table, QFile::encodeName(target));
}

} // namespace

bool FileSystemUsage::checkAndNotifyBeforeSave(const QString& directory, const QString& message)
{
    const auto system = fileSystemAt(directory);
    if (!system || double(system->f_bavail) * double(system->f_frsize) >= double(minimumFree))
        return true;
    notifyUser(message);
    return false;
}

double FileSystemUsage::percentageUsed(const QString& directory)
{
    const auto system = fileSystemAt(directory);
    if (!system)
        return 0;
    const double used = double(system->f_blocks) - double(system->f_bfree);
    const double usable = used + double(system->f_bavail);
    return usable > 0 ? 100 * used / usable : 0;
}

bool FileSystemUsage::isMounted(const QString& path)
{
    if (!path.startsWith(QLatin1Char('/')))
        return false;
    const QString mountPoint = QDir::cleanPath(path);
    const KIVBackend* backend = KIVBackend::current();
    const std::optional<bool> answer = backend ? backend->isMounted(mountPoint) : std::nullopt;
    return answer ? *answer : isInSystemTable(mountPoint);
}
