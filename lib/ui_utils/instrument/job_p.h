#pragma once

#include "instrument/labelledtext_p.h"

#include <QMap>
#include <QString>

/// The user's job, as the base manager reports it, and the work order through which the workflow manager leads the
/// user.
namespace uiutils::instrument {

bool isJobActive();
/// Whether the job has an ID, without which it cannot be identified.
bool hasJobId();

/// The fields that identify the job, "Job ID" and so on.
LabelledTexts jobFields();

/// The active job on one line, "ID: WO-1, Tech: Ana, BAN: 7", without unknown parts. Empty without an active job.
QString jobSummary();

/// The pairs "wo" and "workflowId" that records have of the work order that is active in this application's session.
/// Empty without one, and if the workflow manager serves another session. The environment variable UIUTILS_SESSION
/// names the application's session; if it is unset, that is the session without a name, the only one of some units.
QMap<QString, QString> workOrder();

} // namespace uiutils::instrument
