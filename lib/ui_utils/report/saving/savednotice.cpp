#include "report/saving/savednotice_p.h"

#include "instrument/drives_p.h"
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

} // namespace

QString savedMessage(const QString& path)
{
    const QString clean = QDir::cleanPath(path);
    return ReportTexts::tr("Report %1 saved\nFolder: %2").arg(reportNameOf(clean), instrument::shownFolderOf(clean));
}

void postSavedNotice(const QString& path)
{
    // The tray copies it.
    KIVNotification notification;
    notification.setLongLabel(ReportTexts::tr("Report Saved"));
    notification.setMsg(savedMessage(path));
    notification.notifyTray();
}

} // namespace uiutils
