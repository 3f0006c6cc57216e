#pragma once

#include "instrument/labelledtext_p.h"

#include <QString>
#include <QStringList>

namespace uiutils::instrument {

/// Names of the technician's and the customer's fields that reports include, in the order of the unit's settings.
QStringList technicianFieldNames();
QStringList customerFieldNames();

/// Those of the named fields that exist, with their values as the service gives them ("default" if nobody entered
/// anything). A field without a label is shown with its item's name.
LabelledTexts userFields(const QStringList& names);

/// The technician's first and last name, each only if reports include that field and somebody entered it.
QString technicianName();

} // namespace uiutils::instrument
