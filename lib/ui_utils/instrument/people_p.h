#pragma once

#include "instrument/labelledtext_p.h"

#include <QString>
#include <QStringList>

namespace uiutils::instrument {

/// Names of the technician's and the customer's fields that the unit is set to include in reports, in the set order.
QStringList technicianFieldNames();
QStringList customerFieldNames();

/// Those of the named fields that exist, with their values as the service gives them ("default" where nobody entered
/// anything). A field without a label goes by its item's name.
LabelledTexts userFields(const QStringList& names);

/// The technician's first and last name, as far as they are among the fields that reports include; empty where nobody
/// entered one.
QString technicianName();

} // namespace uiutils::instrument
