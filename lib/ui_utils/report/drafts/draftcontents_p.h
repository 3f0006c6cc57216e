#pragma once

#include <QJsonObject>
#include <QString>

class Report;

/// What a draft keeps of a controller besides its document: the values of its settings, and what the page has set.
namespace uiutils {

/// The state of the controller.
QJsonObject reportState(const Report& report);

/// Has the controller take the state. A value that a user could not have entered is left out.
void takeReportState(Report* report, const QJsonObject& state);

/// What the report is called, for the user: its name, or its title.
QString reportLabel(const Report& report);

} // namespace uiutils
