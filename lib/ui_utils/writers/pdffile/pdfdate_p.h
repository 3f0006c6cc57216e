#pragma once

#include <QDateTime>
#include <QString>

namespace uiutils::pdf {

/// A PDF date, "D:YYYYMMDDHHmmSS+HH'mm'", of which everything after the year may be missing. A date without a zone is
/// in local time. Invalid if the text is not a date.
QDateTime dateTime(const QString& text);

} // namespace uiutils::pdf
