#pragma once

#include "instrument/labelledtext_p.h"

#include <QMap>
#include <QString>

/// The job that the base manager says the user is on, and the work order that the workflow manager leads the user
/// through.
namespace uiutils::instrument {

bool isJobActive();
/// Whether the job has an ID, without which nobody knows which one it is.
bool hasJobId();

/// Identity of the job, "Job ID" and so on.
LabelledTexts jobFields();

/// The active job on one line, "ID: WO-1, Tech: Ana, BAN: 7", without what is not known. Empty without an active job.
QString jobSummary();

/// What records say of the work order that is active in this application's session, under "wo" and "workflowId";
/// nothing without one and when the workflow manager serves another session. The environment variable UIUTILS_SESSION
/// names the application's; unset, it is the session without a name of units that know no others.
QMap<QString, QString> workOrder();

} // namespace uiutils::instrument
