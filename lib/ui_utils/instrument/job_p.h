#pragma once

#include "instrument/labelledtext_p.h"

#include <QMap>
#include <QString>

/// The user's job, as the base manager reports it, and the work order through which the workflow manager leads the
/// user.
namespace uiutils::instrument {

bool isJobActive();

/// What reports and their records have of the job.
struct JobFacts
{
    bool isActive = false;
    QString id;
    /// The fields that identify the job, "Job ID" and so on.
    LabelledTexts fields;
    /// See workOrder().
    QMap<QString, QString> workOrder;

    /// Whether the job has an ID, without which it cannot be identified.
    bool hasId() const { return !id.trimmed().isEmpty(); }
};

/// The facts as they are now, or as they were when the newest HeldJob was made.
JobFacts jobFacts();

/// While one lives, jobFacts() stays as it is: the files of a save, which shows pages and lets other programs act
/// meanwhile, are all of the same job. Those that live at the same time end in the reverse order of their making.
class HeldJob
{
public:
    HeldJob();
    ~HeldJob();
    Q_DISABLE_COPY_MOVE(HeldJob)

private:
    friend JobFacts jobFacts();

    const JobFacts m_facts;
    const HeldJob* const m_outer;
};

/// The active job on one line, "ID: WO-1, Tech: Ana, BAN: 7", without unknown parts. Empty without an active job.
QString jobSummary();

/// The pairs "wo" and "workflowId" that records have of the work order that is active in this application's session.
/// Empty without one, and if the workflow manager serves another session. The environment variable UIUTILS_SESSION
/// names the application's session; if it is unset, that is the session without a name, the only one of some units.
QMap<QString, QString> workOrder();

} // namespace uiutils::instrument
