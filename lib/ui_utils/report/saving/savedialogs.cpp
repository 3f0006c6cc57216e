#include "report/saving/savedialogs_p.h"

#include "report/reporttexts_p.h"

#include <QPointer>
#include <QtDebug>

#include <utility>

namespace uiutils {

void SaveDialogs::beginSave()
{
    m_isFirstError = true;
    m_isSyncErrorTold = false;
}

void SaveDialogs::endSave()
{
    m_isFirstError.reset();
}

void SaveDialogs::tellWriteError(const QString& path, const QString& reason)
{
    qDebug("The report %s was not written: %s", qUtf8Printable(path), qUtf8Printable(reason));
    const bool isToldAlready = m_isFirstError && !*m_isFirstError;
    if (m_isFirstError)
        m_isFirstError = false;
    if (!isToldAlready)
        m_errors->sendNotificationWriteError(path);
}

void SaveDialogs::tell(const QString& title, const QString& text)
{
    auto refusal = std::make_unique<KIVNotification>();
    refusal->setLongLabel(title);
    refusal->setMsg(text);
    refusal->setError();
    // A slot that is notified that the former dialog has closed may delete this object.
    const QPointer<KIVNotification> told(refusal.get());
    std::exchange(m_refusal, std::move(refusal)).reset();
    if (told)
        told->notifyDialog();
    // By now a slot may have deleted the page, and the dialog with it.
    if (told)
        told->notifyTray();
}

void SaveDialogs::tellSyncError(const QString& consequence, const QString& reason)
{
    qWarning("%s", qUtf8Printable(reason));
    const bool isSave = m_isFirstError.has_value();
    if (!isSave || !std::exchange(m_isSyncErrorTold, true))
        tell(ReportTexts::tr("Sync"), consequence + QLatin1Char(' ') + reason);
}

void SaveDialogs::close()
{
    m_refusal.reset();
    m_errors = std::make_unique<FileUtils>();
}

} // namespace uiutils
