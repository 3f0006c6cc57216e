#include "report/saving/overwritequestion_p.h"

#include <QUuid>

#include <utility>

namespace uiutils {

namespace {

const QLatin1String tokenKey("question");

} // namespace

void OverwriteQuestion::ask(const QString& path)
{
    m_pendingPath = path;
    m_token = QUuid::createUuid().toString();
    m_question->sendNotificationOverwriteReportRequest(path, {{tokenKey, m_token}});
}

QString OverwriteQuestion::takeAnswered(const KIVNotification* notification)
{
    if (!notification || m_token.isEmpty() || notification->value(tokenKey) != m_token)
        return QString();
    m_token.clear();
    return std::exchange(m_pendingPath, QString());
}

void OverwriteQuestion::withdraw()
{
    if (m_token.isEmpty())
        return;
    m_token.clear();
    m_pendingPath.clear();
    // A slot that is notified that the dialog has closed may delete the object that asked.
    const auto former = std::exchange(m_question, std::make_unique<FileUtils>());
}

} // namespace uiutils
