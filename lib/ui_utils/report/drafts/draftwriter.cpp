#include "report/drafts/draftwriter_p.h"

#include "base/durablefile_p.h"
#include "report/reporttexts_p.h"

#include <QElapsedTimer>
#include <QFile>
#include <QMetaObject>
#include <QObject>
#include <QRunnable>
#include <QtDebug>

#include <atomic>
#include <cerrno>
#include <utility>

namespace uiutils {

namespace {

QString inWords(const QString& error)
{
    const bool isFull = error.endsWith(qt_error_string(ENOSPC)) || error.endsWith(qt_error_string(EDQUOT));
    return isFull ? ReportTexts::tr("There is not enough space to keep the results until they are saved")
                  : ReportTexts::tr("The results cannot be kept until they are saved: the disk does not take them");
}

} // namespace

DraftOutcome writeDraft(const QString& path, const DraftHeader& header, const DraftContents& contents)
{
    QElapsedTimer watch;
    watch.start();
    DraftOutcome outcome;
    const std::optional<QByteArray> file = draftFile(header, contents, &outcome.problem);
    outcome.isWritten = file && writeFileDurably(path, *file, &outcome.error);
    if (file && !outcome.isWritten)
        outcome.problem = inWords(outcome.error);
    outcome.duration = watch.elapsed();
    return outcome;
}

qint64 pauseAfter(int interval, qint64 duration)
{
    constexpr int shareOfTime = 20;
    constexpr qint64 longest = 60 * 1000;
    return qMax<qint64>(interval, qMin(longest, shareOfTime * duration));
}

/// Written by the thread before `isDone`, read after it.
struct DraftWriter::Result
{
    std::atomic_bool isDone = false;
    DraftOutcome outcome;
};

DraftWriter::DraftWriter(QObject* context, std::function<void()> onDone)
    : m_context(context)
    , m_onDone(std::move(onDone))
{
    m_threads.setMaxThreadCount(1);
}

DraftWriter::~DraftWriter()
{
    wait();
}

void DraftWriter::start(const QString& path, const DraftHeader& header, const DraftContents& contents)
{
    m_outcome = std::make_shared<Result>();
    const auto work = [=, result = m_outcome, context = m_context, onDone = m_onDone] {
        result->outcome = writeDraft(path, header, contents);
        result->isDone = true;
        QMetaObject::invokeMethod(context, onDone, Qt::QueuedConnection);
    };
    m_threads.start(QRunnable::create(work));
}

bool DraftWriter::remove(const QString& path)
{
    if (!QFile::remove(path))
        return false;
    m_threads.start(QRunnable::create([path] {
        if (!syncNameOf(path))
            qWarning("A power cut may bring the draft %s back: %s", qUtf8Printable(path),
                    qUtf8Printable(qt_error_string(errno)));
    }));
    return true;
}

std::optional<DraftOutcome> DraftWriter::take()
{
    if (!m_outcome || !m_outcome->isDone)
        return std::nullopt;
    return std::exchange(m_outcome, nullptr)->outcome;
}

} // namespace uiutils
