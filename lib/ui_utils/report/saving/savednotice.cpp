#include "report/saving/savednotice_p.h"

#include "instrument/drives_p.h"
#include "report/reportformats_p.h"
#include "report/reporttexts_p.h"

#include <kiv/kivnotification.h>

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace uiutils {

namespace {

QString reportNameOf(const QString& path)
{
    const QString plain = path.endsWith(gzipSuffix) ? path.chopped(gzipSuffix.size()) : path;
    return QFileInfo(plain).completeBaseName();
}

void postNotice(const QString& path)
{
    // The tray copies it.
    KIVNotification notification;
    notification.setLongLabel(ReportTexts::tr("Report Saved"));
    notification.setMsg(savedMessage(path));
    notification.notifyTray();
}

} // namespace

QString savedMessage(const QString& path)
{
    const QString clean = QDir::cleanPath(path);
    return ReportTexts::tr("Report %1 saved\nFolder: %2").arg(reportNameOf(clean), instrument::shownFolderOf(clean));
}

void SavedNotices::begin(bool isOneForAll)
{
    m_isOneForAll = isOneForAll;
}

void SavedNotices::post(const QString& path)
{
    if (!m_isOneForAll)
        postNotice(path);
    else if (m_first.isEmpty())
        m_first = path;
}

void SavedNotices::end()
{
    m_isOneForAll = false;
    const QString first = std::exchange(m_first, QString());
    if (!first.isEmpty())
        postNotice(first);
}

} // namespace uiutils
