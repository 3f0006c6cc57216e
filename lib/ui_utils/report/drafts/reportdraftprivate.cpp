#include "report/drafts/reportdraft_p.h"

#include "document/reporttemplate.h"
#include "report/drafts/draftcontents_p.h"

#include <QFile>
#include <QtDebug>

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
    flush();
    if (!self)
        return;
    id = newId;
    m_ownFile.clear();
    m_isUnwritten = false;
    m_folder = id.isEmpty() ? nullptr : std::make_unique<DraftFolder>(id);
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
    if (isKept)
        m_look.start(qMax(1, interval));
    setOffered(isOwner ? m_folder->drafts() : QVector<OfferedDraft>());
}

void ReportDraftPrivate::setOffered(const QVector<OfferedDraft>& drafts)
{
    const bool isChange = !drafts.isEmpty() || !offered.isEmpty();
    offered = drafts;
    if (isChange)
        Q_EMIT q->availableChanged();
}

void ReportDraftPrivate::discard()
{
    if (offered.isEmpty())
        return;
    if (!QFile::remove(offered.constFirst().path))
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
    m_kept.report = report ? reportState(*report) : QJsonObject();
    m_kept.title = report ? reportLabel(*report) : QString();
    const ReportTemplate* const source = report ? &std::as_const(*report).document() : document.data();
    m_kept.document = source ? source->object() : QJsonObject();
    m_isUnwritten = true;
    schedule();
    tellPending();
}

void ReportDraftPrivate::forget()
{
    m_writer.wait();
    m_writer.take();
    m_turn.stop();
    m_kept = {};
    m_isUnwritten = false;
    if (!m_ownFile.isEmpty() && !QFile::remove(m_ownFile) && QFile::exists(m_ownFile))
        qWarning("The draft %s cannot be removed", qUtf8Printable(m_ownFile));
    m_ownFile.clear();
    const QPointer<ReportDraft> self(q);
    setProblem(QString(), QString());
    if (self)
        tellPending();
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

/// At most a twentieth of the time is spent on writing, and of the life of the disk.
qint64 ReportDraftPrivate::pause() const
{
    constexpr int shareOfTime = 20;
    const qint64 wanted = qMax<qint64>(interval, shareOfTime * m_lastDuration);
    return m_sinceWriting.isValid() ? qMax<qint64>(0, wanted - m_sinceWriting.elapsed()) : 0;
}

void ReportDraftPrivate::schedule()
{
    if (m_isUnwritten && !m_writer.isBusy() && !m_turn.isActive())
        m_turn.start(int(pause()));
}

/// What another owner has left is listed before a file of this run is among it.
bool ReportDraftPrivate::takeFolder()
{
    if (m_folder->isOwned())
        return true;
    const QPointer<ReportDraft> self(q);
    QString error;
    if (m_folder->makeAndClaim(&error)) {
        m_look.stop();
        setOffered(m_folder->drafts());
        return self;
    }
    m_sinceWriting.restart();
    schedule();
    setProblem(m_folder->exists() ? ReportDraft::tr("Another page or program keeps results of this kind")
                                  : ReportDraft::tr("There is no folder to keep the results in until they are saved"),
            error);
    return false;
}

void ReportDraftPrivate::write()
{
    if (!m_isUnwritten || m_writer.isBusy() || !takeFolder())
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
}

bool ReportDraftPrivate::flush()
{
    const QPointer<ReportDraft> self(q);
    m_writer.wait();
    finish();
    if (self && m_isUnwritten && takeFolder()) {
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
    if (offered.isEmpty() || !flush() || !self || offered.isEmpty())
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
    if (putBack(contents))
        Q_EMIT q->availableChanged();
    if (self)
        Q_EMIT q->restored();
    return true;
}

/// What the disk does not give now, it may give later.
void ReportDraftPrivate::rejectOffered(DraftState state)
{
    if (state == DraftState::Unreadable)
        return;
    if (state == DraftState::Damaged)
        m_folder->setAside(offered.constFirst().path);
    setOffered(offered.mid(1));
}

/// A slot that is notified of one value may call keep() while the others are still the former ones.
bool ReportDraftPrivate::putBack(const DraftContents& contents)
{
    const QPointer<ReportDraft> self(q);
    m_isRestoring = true;
    ReportTemplate* const target = report ? &report->document() : document.data();
    if (target && !contents.document.isEmpty())
        target->setObject(contents.document);
    data = contents.data.toVariantMap();
    if (report)
        takeReportState(report, contents.report);
    if (self)
        Q_EMIT q->dataChanged();
    if (!self)
        return false;
    m_isRestoring = false;
    if (std::exchange(m_keepsAfterwards, false))
        keep();
    return self;
}

} // namespace uiutils
