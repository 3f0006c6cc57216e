#include "report/savednotice_p.h"

#include "base/paths.h"
#include "report/reportdestinations_p.h"
#include "report/reportformats_p.h"
#include "report/reporttexts_p.h"

#include <kiv/kivnotification.h>

#include <QDir>
#include <QFileInfo>

namespace uiutils {

namespace {

QString reportNameOf(const QString& path)
{
    const QString plain = path.endsWith(gzipSuffix) ? path.chopped(gzipSuffix.size()) : path;
    return QFileInfo(plain).completeBaseName();
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

} // namespace

QString savedMessage(const QString& path)
{
    const QString clean = QDir::cleanPath(path);
    return ReportTexts::tr("Report %1 saved\nFolder: %2").arg(reportNameOf(clean), shownFolderOf(clean));
}

void postSavedNotice(const QString& path)
{
    // The tray keeps copies.
    KIVNotification notification;
    notification.setLongLabel(ReportTexts::tr("Report Saved"));
    notification.setMsg(savedMessage(path));
    notification.notifyTray();
}

} // namespace uiutils
