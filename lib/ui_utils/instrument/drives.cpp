#include "instrument/drives_p.h"

#include "base/paths_p.h"
#include "base/plaintext_p.h"

#include <kiv/filesystemusage.h>

#include <QCoreApplication>
#include <QDir>

namespace uiutils::instrument {

bool isOnUsb(const QString& path)
{
    return QDir::cleanPath(path).startsWith(paths::usb) || path == paths::usb;
}

QString usbPath(const QString& path)
{
    return paths::usb + path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

bool isDriveThere(const QString& path)
{
    return !isOnUsb(path) || FileSystemUsage::isMounted(paths::usb);
}

QString withoutClipboardMark(const QString& path)
{
    for (const QLatin1String mark : {QLatin1String("copy:"), QLatin1String("cut:")}) {
        if (path.startsWith(mark))
            return path.mid(mark.size());
    }
    return path;
}

QString shownPath(const QString& path)
{
    // Without a slash at the end, because the folders themselves are shown too.
    const QLatin1String internal("/cust/public");
    const QLatin1String usb("/mnt/usb");
    // The names on strangers' drives must neither break nor turn the text of a question.
    const QString plain = plainText(withoutClipboardMark(path)).replace(QLatin1Char('\n'), QLatin1Char(' '));
    if (plain.startsWith(internal))
        return QCoreApplication::translate("FileUtils", "Internal:") + plain.mid(internal.size());
    if (plain.startsWith(usb))
        return QCoreApplication::translate("FileUtils", "USB:") + plain.mid(usb.size());
    return plain;
}

QString shownFolderOf(const QString& path)
{
    if (isOnUsb(path))
        return QStringLiteral("USB");
    QString folder = path.left(path.lastIndexOf(QLatin1Char('/')) + 1);
    if (folder.startsWith(paths::publicFolder))
        folder.remove(0, paths::publicFolder.size());
    if (folder.endsWith(QLatin1Char('/')))
        folder.chop(1);
    return folder;
}

} // namespace uiutils::instrument
