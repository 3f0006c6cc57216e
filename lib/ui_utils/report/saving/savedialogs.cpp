#include "report/saving/savedialogs_p.h"

#include "instrument/drives_p.h"
#include "report/reporttexts_p.h"

#include <QPointer>
#include <QtDebug>

#include <utility>

namespace uiutils {

void SaveDialogs::beginSave()
{
    m_isFirstError = true;
    m_isSyncErrorShown = false;
}

void SaveDialogs::endSave()
{
    m_isFirstError.reset();
}

void SaveDialogs::notifyWriteError(const QString& path, const QString& reason)
{
    qDebug("The report %s was not written: %s", qUtf8Printable(path), qUtf8Printable(reason));
    const bool isShownAlready = m_isFirstError && !*m_isFirstError;
    if (m_isFirstError)
        m_isFirstError = false;
    if (!isShownAlready)
        m_errors->sendNotificationWriteError(path);
}

void SaveDialogs::notify(const QString& title, const QString& text)
{
    auto error = std::make_unique<KIVNotification>();
    error->setLongLabel(title);
    error->setMsg(text);
    error->setError();
    // A slot that is notified that the former dialog has closed may delete this object.
    const QPointer<KIVNotification> alive(error.get());
    std::exchange(m_error, std::move(error)).reset();
    if (alive)
        alive->notifyDialog();
    // By now a slot may have deleted the page, and the dialog with it.
    if (alive)
        alive->notifyTray();
}

void SaveDialogs::notifySyncError(const QString& consequence, const QString& reason)
{
    qWarning("%s", qUtf8Printable(reason));
    const bool isSave = m_isFirstError.has_value();
    if (!isSave || !std::exchange(m_isSyncErrorShown, true))
        notify(ReportTexts::tr("Sync"), consequence + QLatin1Char(' ') + reason);
}

void SaveDialogs::notifySyncError(const QStringList& files, bool isSynced, const QString& reason)
{
    QStringList shown;
    for (const QString& file : files)
        shown += instrument::shownPath(file);
    const QString consequence = isSynced ? ReportTexts::tr("%1 is still on the list of reports that are not synced.")
                                         : ReportTexts::tr("The cloud may take %1, although it is not to be synced.");
    notifySyncError(consequence.arg(shown.join(QLatin1String(", "))), reason);
}

void SaveDialogs::close()
{
    m_error.reset();
    m_errors = std::make_unique<FileUtils>();
}

} // namespace uiutils
