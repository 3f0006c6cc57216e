#include "report/overwritegate_p.h"

#include "base/paths.h"
#include "report/reportformats_p.h"

#include <QFileInfo>
#include <QUuid>

#include <utility>

namespace uiutils {

namespace {

const QLatin1String tokenKey("question");

/// A link that leads nowhere is there, too.
bool isTaken(const QString& path)
{
    const QFileInfo file(onDisk(path));
    return file.exists() || file.isSymLink();
}

} // namespace

QString OverwriteGate::firstTaken(const QStringList& paths, bool compressed)
{
    for (const QString& path : paths) {
        if (isTaken(path) || (compressed && isTaken(path + gzipSuffix)))
            return path;
    }
    return QString();
}

void OverwriteGate::ask(const QString& path)
{
    m_pendingPath = path;
    m_token = QUuid::createUuid().toString();
    m_question->sendNotificationOverwriteReportRequest(path, {{tokenKey, m_token}});
}

QString OverwriteGate::takeAnswered(const KIVNotification* notification)
{
    if (!notification || m_token.isEmpty() || notification->value(tokenKey) != m_token)
        return QString();
    m_token.clear();
    return std::exchange(m_pendingPath, QString());
}

void OverwriteGate::withdraw()
{
    if (m_token.isEmpty())
        return;
    m_token.clear();
    m_pendingPath.clear();
    // Those who hear that the dialog has gone may delete whoever holds the gate.
    const auto former = std::exchange(m_question, std::make_unique<FileUtils>());
}

} // namespace uiutils
