#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// What reports tell about the unit, its user and its job, read from the services. Everything is empty where the
/// service or the item is missing.
namespace uiutils::instrument {

struct LabelledText
{
    QString label;
    QString text;
};
using LabelledTexts = QVector<LabelledText>;

/// The technician's and the customer's fields that the unit is set to include in reports, in the set order, with
/// their values as the service gives them ("default" where nobody entered anything).
LabelledTexts technicianFields();
LabelledTexts customerFields();

/// Identity of the job, "Job ID" and so on.
LabelledTexts jobFields();

/// Name and version of the installed components, as many as both lists hold.
LabelledTexts softwareRevisions();

/// One entry for each hardware assembly: the parts of its description, empty ones included.
QVector<QStringList> hardwareAssemblies();

/// The settings of `module` on the service, in the order of their ids; "default" for one without a value. An empty
/// service name means the base manager.
LabelledTexts configurationValues(const QString& service, const QString& module);

} // namespace uiutils::instrument
