#pragma once

#include "report/drafts/draftfolder_p.h"
#include "report/drafts/draftwriter_p.h"
#include "report/drafts/reportdraft.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <optional>

namespace uiutils {

/// What a draft has taken, when it is written, and what is offered. Where a function ends with a signal, a slot may
/// have deleted the draft.
class ReportDraftPrivate
{
public:
    explicit ReportDraftPrivate(ReportDraft* draft);

    QString id;
    QPointer<Report> report;
    QPointer<ReportTemplate> document;
    /// Whether the page has set one, which may have been deleted since.
    bool hasReport = false;
    bool hasDocument = false;
    QVariantMap data;
    int interval = 2000;
    bool isBeingCreated = false;
    QVector<OfferedDraft> offered;
    QString problem;

    bool isPending() const { return m_isUnwritten || m_writer.isBusy(); }
    void takeId(const QString& newId);
    void keep();
    bool flush();
    bool restore();
    void discard();
    void forget();
    /// The controller begins to write its report, or is done.
    void noteSave();
    void endSave();

private:
    /// What keep() has taken.
    struct Kept
    {
        QVariantMap data;
        QJsonObject report;
        QJsonObject document;
        QString title;
    };

    void look();
    void schedule();
    void takeObjects();
    bool canWrite() const { return m_isUnwritten && !m_writer.isBusy(); }
    bool takeFolder();
    void write();
    DraftContents takeKept();
    void finish();
    void settle(const DraftOutcome& outcome);
    void rejectOffered(DraftState state);
    void putBack(const DraftContents& contents, const QString& title);
    void setOffered(const QVector<OfferedDraft>& drafts);
    void dropVanished();
    void setProblem(const QString& words, const QString& error);
    void tellPending();
    qint64 pause() const;

    ReportDraft* const q;
    std::unique_ptr<DraftFolder> m_folder;
    /// The file of this run, on the disk; empty if there is none.
    QString m_ownFile;
    Kept m_kept;
    /// What was kept when the controller began to write its report.
    std::optional<Kept> m_saved;
    bool m_isUnwritten = false;
    bool m_isRestoring = false;
    bool m_keepsAfterwards = false;
    bool m_wasPending = false;
    QTimer m_turn;
    /// For a folder that has another owner.
    QTimer m_look;
    QString m_lookError;
    QElapsedTimer m_sinceWriting;
    qint64 m_lastDuration = 0;
    /// The last member: its thread ends first.
    DraftWriter m_writer;
};

} // namespace uiutils
