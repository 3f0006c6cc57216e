#pragma once

#include "reportfixture.h"

#include "report/drafts/reportdraft.h"

using uiutils::ReportDraft;

// The folder of the drafts has the names of the application and of the draft.
inline const QString application("drafts");
inline const QString id("otdr");
inline const QString folder("/cust/private/drafts/drafts/otdr/");

/// A page with a draft, as it is in one run of the program.
struct Run
{
    Controller report;
    ReportDraft draft;
    SignalLog log {&draft};

    explicit Run(const QString& draftId = id)
    {
        draft.setInterval(0);
        draft.setReport(&report);
        draft.setDraftId(draftId);
        log.take();
    }
    void measure(const QVariantMap& data, const QString& event = QString())
    {
        report.document().beginReport("otdr");
        report.document().setKey("event", event);
        report.document().endReport();
        draft.setData(data);
    }
    QString event() { return report.document().object().value("event").toString(); }
};

inline QVariantMap number(int value)
{
    return {{"number", value}};
}

/// A new instrument without drafts for each test.
class DraftFixture : public ReportFixture
{
protected:
    DraftFixture() { QCoreApplication::setApplicationName(application); }

    QStringList files() const { return names(folder); }
    QString onlyFile() const { return files().size() == 1 ? onDisk(folder + files().first()) : QString(); }
};
