#include "report/saving/overwritequestion_p.h"

#include "instrument/drives_p.h"
#include "report/reporttexts_p.h"

#include <QUuid>

#include <utility>

namespace uiutils {

namespace {

const QLatin1String tokenKey("question");

QString listed(const QStringList& files)
{
    QStringList lines(ReportTexts::tr("%1 files would be overwritten:").arg(files.size()));
    for (const QString& file : files)
        lines += instrument::shownPath(file);
    return lines.join(QLatin1Char('\n'));
}

} // namespace

void OverwriteQuestion::ask(const QString& path, const QStringList& files)
{
    m_pendingPath = path;
    m_token = QUuid::createUuid().toString();
    QMap<QString, QString> values {{tokenKey, m_token}};
    if (files.size() > 1)
        values.insert(QStringLiteral("details"), listed(files));
    m_question->sendNotificationOverwriteReportRequest(path, values);
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
