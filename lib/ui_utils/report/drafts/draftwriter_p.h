#pragma once

#include "report/drafts/draftfile_p.h"

#include <QString>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <optional>

class QObject;

namespace uiutils {

/// How a draft was written.
struct DraftOutcome
{
    bool isWritten = false;
    /// In words for the user, and as the system says it.
    QString problem;
    QString error;
    /// Milliseconds.
    qint64 duration = 0;
};

/// Writes the file at `path` on the disk.
DraftOutcome writeDraft(const QString& path, const DraftHeader& header, const DraftContents& contents);

/// The shortest time from the end of one write, which took so long, to the next, in milliseconds: at most a twentieth
/// of the time is spent on writing, and of the life of the disk. But a disk that was stuck once must not cost a user
/// more than a minute of measuring.
qint64 pauseAfter(int interval, qint64 duration);

/// Writes drafts in a thread of its own, because a disk may take a second to say that a file is safe. One at a time.
/// The same thread makes removals safe.
class DraftWriter
{
public:
    /// `onDone` is called in the thread of `context` when a draft was written. `context` must outlive this object.
    DraftWriter(QObject* context, std::function<void()> onDone);
    /// Waits for the thread.
    ~DraftWriter();
    Q_DISABLE_COPY_MOVE(DraftWriter)

    /// Begins to write the file. What the thread reads is shared, and nobody changes it.
    void start(const QString& path, const DraftHeader& header, const DraftContents& contents);
    /// Removes the file at once; a power cut may bring it back until the thread has seen to that. False if it cannot be
    /// removed.
    bool remove(const QString& path);
    bool isBusy() const { return bool(m_outcome); }
    /// Waits until the file is written, and removals are safe.
    void wait() { m_threads.waitForDone(); }
    /// How the file was written, once; nothing if none was, or if that still goes on.
    std::optional<DraftOutcome> take();

private:
    struct Result;

    QObject* const m_context;
    const std::function<void()> m_onDone;
    std::shared_ptr<Result> m_outcome;
    QThreadPool m_threads;
};

} // namespace uiutils
