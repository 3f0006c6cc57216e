#pragma once

#include <kiv/kivitemsnapshot.h>

#include <QString>
#include <QStringList>
#include <QVector>

class ReportMetadata;

/// What reports and their metadata tell about the unit, its user and its job, read from the services. Everything is
/// empty where the service or the item is missing.
namespace uiutils::instrument {

struct LabelledText
{
    QString label;
    QString text;
};
using LabelledTexts = QVector<LabelledText>;

/// Names of the technician's and the customer's fields that the unit is set to include in reports, in the set order.
QStringList technicianFieldNames();
QStringList customerFieldNames();

/// Those of the named fields that exist, with their values as the service gives them ("default" where nobody entered
/// anything). A field without a label goes by its item's name.
LabelledTexts userFields(const QStringList& names);

/// The technician's first and last name, as far as they are among the fields that reports include; empty where nobody
/// entered one.
QString technicianName();

/// The barcode of the base unit.
QString unitId();

/// Identity of the job, "Job ID" and so on.
LabelledTexts jobFields();

/// Adds the pairs "wo" and "workflowId" of the work order that is active in this application's session; nothing without
/// one and when the workflow manager serves another session. The environment variable UIUTILS_SESSION names the
/// application's; unset, it is the session without a name of units that know no others.
void addWorkOrder(ReportMetadata* metadata);

/// Name and version of the installed components, as many as both lists hold.
LabelledTexts softwareRevisions();

/// One entry for each hardware assembly: the parts of its description, empty ones included.
QVector<QStringList> hardwareAssemblies();

/// The settings of the service as they are now, in the order of their ids. An empty name means the base manager.
KIVItemSnapshot settingsOf(const QString& service);

/// The settings of `module` among those of a service, in their order there; "default" for one without a value.
LabelledTexts configurationValues(const KIVItemSnapshot& settings, const QString& module);

} // namespace uiutils::instrument
