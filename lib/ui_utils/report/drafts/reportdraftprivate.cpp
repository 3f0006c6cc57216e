#include "report/drafts/reportdraft_p.h"

#include "document/reporttemplate.h"
#include "report/drafts/draftcontents_p.h"

#include <QFile>
#include <QtDebug>

#include <algorithm>
#include <iterator>
#include <utility>

namespace uiutils {

ReportDraftPrivate::ReportDraftPrivate(ReportDraft* draft)
    : q(draft)
    , m_writer(draft, [this] { finish(); })
{
    m_turn.setSingleShot(true);
    m_look.setSingleShot(true);
    QObject::connect(&m_turn, &QTimer::timeout, q, [this] { write(); });
    QObject::connect(&m_look, &QTimer::timeout, q, [this] { look(); });
}

// --- The folder, and what is offered ---

void ReportDraftPrivate::takeId(const QString& newId)
{
    const QPointer<ReportDraft> self(q);
    if (!flush() && self)
        qWarning("The draft of %s is lost: %s", qUtf8Printable(id), qUtf8Printable(problem));
    if (!self)
        return;
    id = newId;
    m_folder = id.isEmpty() ? nullptr : std::make_unique<DraftFolder>(id);
    m_ownFile.clear();
    m_saved.reset();
    m_lookError.clear();
    m_look.stop();
    // What could not be written belongs to the other name, and so does the problem.
    forget();
    if (self)
        look();
}

/// The page that owned the folder may be the one that this page replaces, and be deleted soon.
void ReportDraftPrivate::look()
{
    QString error;
    const bool isOwner = m_folder && m_folder->claim(&error);
    const bool isKept = !isOwner && m_folder && m_folder->exists();
    if (isKept && std::exchange(m_lookError, error) != error)
        qWarning("The drafts of %s are not offered now: %s", qUtf8Printable(id), qUtf8Printable(error));
    constexpr int longestWait = 1000;
    if (isKept)
        m_look.start(qBound(1, interval, longestWait));
    setOffered(isOwner ? m_folder->drafts() : QVector<OfferedDraft>());
}

void ReportDraftPrivate::setOffered(const QVector<OfferedDraft>& drafts)
{
    const bool isChange = !drafts.isEmpty() || !offered.isEmpty();
    offered = drafts;
    if (isChange)
        Q_EMIT q->availableChanged();
}

/// Too many drafts, or somebody else, may have removed files.
void ReportDraftPrivate::dropVanished()
{
    QVector<OfferedDraft> left;
    std::copy_if(offered.cbegin(), offered.cend(), std::back_inserter(left),
            [](const OfferedDraft& draft) { return QFile::exists(draft.path); });
    if (left.size() != offered.size())
        setOffered(left);
}

void ReportDraftPrivate::discard()
{
    if (offered.isEmpty())
        return;
    if (!m_writer.remove(offered.constFirst().path))
        qWarning("The draft %s cannot be removed", qUtf8Printable(offered.constFirst().path));
    setOffered(offered.mid(1));
}

// --- What is kept ---

void ReportDraftPrivate::keep()
{
    m_keepsAfterwards = m_isRestoring;
    if (m_isRestoring || !m_folder)
        return;
    m_kept.data = data;
    takeObjects();
    m_isUnwritten = true;
    schedule();
    tellPending();
}

/// The objects of a page are deleted in any order. Of one that is gone, what it had last stays.
void ReportDraftPrivate::takeObjects()
{
    if (hasReport ? !report : hasDocument && !document)
        return;
    m_kept.report = report ? reportState(*report) : QJsonObject();
    m_kept.title = report ? reportLabel(*report) : QString();
    const ReportTemplate* const source = report ? &std::as_const(*report).document() : document.data();
    m_kept.document = source ? source->object() : QJsonObject();
}

void ReportDraftPrivate::forget()
{
    m_writer.wait();
    m_writer.take();
    m_turn.stop();
    m_kept = {};
    m_isUnwritten = false;
    if (!m_ownFile.isEmpty() && !m_writer.remove(m_ownFile) && QFile::exists(m_ownFile))
        qWarning("The draft %s cannot be removed", qUtf8Printable(m_ownFile));
    m_ownFile.clear();
    const QPointer<ReportDraft> self(q);
    setProblem(QString(), QString());
    if (self)
        tellPending();
}

void ReportDraftPrivate::noteSave()
{
    if (report && report->isSaving())
        m_saved = m_kept;
}

/// What was measured while the report was written is not in it.
void ReportDraftPrivate::endSave()
{
    const std::optional<Kept> saved = std::exchange(m_saved, std::nullopt);
    if (!saved || (saved->data == m_kept.data && saved->document == m_kept.document))
        forget();
}

void ReportDraftPrivate::tellPending()
{
    if (std::exchange(m_wasPending, isPending()) != m_wasPending)
        Q_EMIT q->pendingChanged();
}

/// The log has a line for each new problem, not for each attempt.
void ReportDraftPrivate::setProblem(const QString& words, const QString& error)
{
    if (std::exchange(problem, words) == words)
        return;
    if (!words.isEmpty())
        qWarning("A draft is not written: %s", qUtf8Printable(error.isEmpty() ? words : error));
    Q_EMIT q->problemChanged();
}

// --- When it is written ---

qint64 ReportDraftPrivate::pause() const
{
    const qint64 wanted = pauseAfter(interval, m_lastDuration);
    return m_sinceWriting.isValid() ? qMax<qint64>(0, wanted - m_sinceWriting.elapsed()) : 0;
}

void ReportDraftPrivate::schedule()
{
    if (m_isUnwritten && !m_writer.isBusy() && !m_turn.isActive())
        m_turn.start(int(pause()));
}

/// What another owner has left is listed before a file of this run is among it. A slot that is notified of that may
/// give a draft back: whoever goes on after this asks canWrite() again.
bool ReportDraftPrivate::takeFolder()
{
    if (m_folder->isOwned())
        return true;
    const QPointer<ReportDraft> self(q);
    QString error;
    if (m_folder->makeAndClaim(&error)) {
        m_look.stop();
        // That of a folder that somebody has removed.
        m_ownFile.clear();
        setOffered(m_folder->drafts());
        return self;
    }
    m_sinceWriting.restart();
    schedule();
    setProblem(DraftFolder::isAnotherOwner(error)
                    ? ReportDraft::tr("Another page or program keeps results of this kind")
                    : ReportDraft::tr("There is no folder to keep the results in until they are saved"),
            error);
    return false;
}

void ReportDraftPrivate::write()
{
    if (!canWrite() || !takeFolder() || !canWrite())
        return;
    const DraftContents contents = takeKept();
    m_writer.start(m_ownFile, {QDateTime::currentDateTime(), m_kept.title}, contents);
}

DraftContents ReportDraftPrivate::takeKept()
{
    if (m_ownFile.isEmpty())
        m_ownFile = m_folder->newFile();
    m_isUnwritten = false;
    return {QJsonObject::fromVariantMap(m_kept.data), m_kept.report, m_kept.document};
}

void ReportDraftPrivate::finish()
{
    if (const std::optional<DraftOutcome> outcome = m_writer.take())
        settle(*outcome);
}

void ReportDraftPrivate::settle(const DraftOutcome& outcome)
{
    m_lastDuration = outcome.duration;
    m_sinceWriting.restart();
    m_isUnwritten = m_isUnwritten || !outcome.isWritten;
    schedule();
    const QPointer<ReportDraft> self(q);
    setProblem(outcome.problem, outcome.error);
    if (self)
        tellPending();
    if (self)
        dropVanished();
}

bool ReportDraftPrivate::flush()
{
    const QPointer<ReportDraft> self(q);
    m_writer.wait();
    finish();
    if (self && m_isUnwritten && takeFolder() && canWrite()) {
        const DraftContents contents = takeKept();
        settle(writeDraft(m_ownFile, {QDateTime::currentDateTime(), m_kept.title}, contents));
    }
    return self && !isPending();
}

// --- What is given back ---

bool ReportDraftPrivate::restore()
{
    const QPointer<ReportDraft> self(q);
    // Before a draft takes the place of what this run has, that has to be safe.
    if (m_isRestoring || offered.isEmpty() || !flush() || !self || offered.isEmpty())
        return false;
    const OfferedDraft draft = offered.constFirst();
    DraftContents contents;
    const DraftState state = readDraft(draft.path, &contents);
    if (state != DraftState::Good) {
        qWarning("The draft %s cannot be given back", qUtf8Printable(draft.path));
        rejectOffered(state);
        return false;
    }
    offered.removeFirst();
    OfferedDraft former {std::exchange(m_ownFile, draft.path), {}};
    if (!former.path.isEmpty() && readDraftHeader(former.path, &former.header) == DraftState::Good)
        offered.prepend(former);
    m_isRestoring = true;
    putBack(contents, draft.header.title);
    // Of a page that gives back whatever is offered, two drafts would replace each other forever.
    if (self)
        Q_EMIT q->availableChanged();
    if (!self)
        return true;
    m_isRestoring = false;
    if (std::exchange(m_keepsAfterwards, false))
        keep();
    if (self)
        Q_EMIT q->restored();
    return true;
}

/// What the disk does not give now, it may give later.
void ReportDraftPrivate::rejectOffered(DraftState state)
{
    if (state == DraftState::Unreadable)
        return dropVanished();
    if (state == DraftState::Damaged)
        m_folder->setAside(offered.constFirst().path);
    setOffered(offered.mid(1));
}

/// A slot that is notified of one value may call keep() while the others are still the former ones.
void ReportDraftPrivate::putBack(const DraftContents& contents, const QString& title)
{
    const QPointer<ReportDraft> self(q);
    ReportTemplate* const target = report ? &report->document() : document.data();
    if (target)
        target->setObject(contents.document);
    data = contents.data.toVariantMap();
    m_kept = {data, contents.report, contents.document, title};
    if (report && !contents.report.isEmpty())
        takeReportState(report, contents.report);
    if (self)
        Q_EMIT q->dataChanged();
}

} // namespace uiutils
