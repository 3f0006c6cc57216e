#include "report/reportstate_p.h"

#include <kiv/kivnotification.h>

#include <QPointer>
#include <QtDebug>

#include <utility>

namespace uiutils {

void ReportState::beginSave()
{
    endSave();
    m_isFirstError = true;
    m_isSyncErrorTold = false;
}

void ReportState::endSave()
{
    m_isFirstError.reset();
    fixedDestinations.reset();
    checkedPaths.clear();
    strays.clear();
}

void ReportState::tellWriteError(const QString& path, const QString& reason)
{
    qDebug("The report %s was not written: %s", qUtf8Printable(path), qUtf8Printable(reason));
    const bool isToldAlready = m_isFirstError && !*m_isFirstError;
    if (m_isFirstError)
        m_isFirstError = false;
    if (!isToldAlready)
        m_errors->sendNotificationWriteError(path);
}

void ReportState::tell(const QString& title, const QString& text)
{
    auto refusal = std::make_unique<KIVNotification>();
    refusal->setLongLabel(title);
    refusal->setMsg(text);
    refusal->setError();
    // Those who hear that the former dialog has gone may delete whoever tells.
    const QPointer<KIVNotification> told(refusal.get());
    std::exchange(m_refusal, std::move(refusal)).reset();
    if (told)
        told->notifyDialog();
    // The page may go now that the report is saved, and the dialog with it.
    if (told)
        told->notifyTray();
}

void ReportState::tellSyncError(const QString& title, const QString& text)
{
    const bool isSave = m_isFirstError.has_value();
    if (!isSave || !std::exchange(m_isSyncErrorTold, true))
        tell(title, text);
}

void ReportState::closeDialogs()
{
    gate.withdraw();
    m_refusal.reset();
    m_errors = std::make_unique<FileUtils>();
}

void ReportState::takeUpAgreement(const QString& path)
{
    if (agreed && agreed->paths.contains(path))
        agreed.reset();
}

} // namespace uiutils
