#pragma once

#include "files/fileutils.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace uiutils {

/// The question whether a report may replace another one. At most one is open: asking again withdraws the one before,
/// and an answer counts once.
class OverwriteQuestion
{
public:
    OverwriteQuestion() = default;
    ~OverwriteQuestion() = default;
    Q_DISABLE_COPY_MOVE(OverwriteQuestion)

    /// Asks about the report at `path`, which is pending until the answer, and names all `files` that would be
    /// overwritten if they are several.
    void ask(const QString& path, const QStringList& files);
    /// The pending report if the notification is the question about it, which then counts as answered; otherwise empty.
    QString takeAnswered(const KIVNotification* notification);
    bool isAsking() const { return !m_token.isEmpty(); }
    /// Withdraws the question, if one is open: its answer would be taken for one about what is saved now.
    void withdraw();

private:
    std::unique_ptr<FileUtils> m_question = std::make_unique<FileUtils>();
    QString m_pendingPath;
    QString m_token;
};

} // namespace uiutils
