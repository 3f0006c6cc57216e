#pragma once

#include "files/fileutils.h"

#include <QString>

#include <memory>

namespace uiutils {

/// The question whether a report may take another's place. There is at most one: asking again takes the one before
/// back, and an answer counts once.
class OverwriteQuestion
{
public:
    OverwriteQuestion() = default;
    ~OverwriteQuestion() = default;
    Q_DISABLE_COPY_MOVE(OverwriteQuestion)

    /// Asks for the report at `path`, which is pending until the answer.
    void ask(const QString& path);
    /// The pending report when the notification is the question about it, which is answered by that; empty otherwise.
    QString takeAnswered(const KIVNotification* notification);
    bool isAsking() const { return !m_token.isEmpty(); }
    /// Takes the question back, if one is open: its answer would be taken for one about what is saved now.
    void withdraw();

private:
    std::unique_ptr<FileUtils> m_question = std::make_unique<FileUtils>();
    QString m_pendingPath;
    QString m_token;
};

} // namespace uiutils
