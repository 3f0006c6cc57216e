#pragma once

#include "check/services/jsontree.h"

#include <QString>
#include <QStringList>

namespace uiutils::check {

/// A value as a message shows it: "the text "5"", "the number 2.5", "a list".
QString shownValue(const JsonNode& value);

/// A text in quotation marks, cut if it is long.
QString quoted(const QString& text);

/// A number as it is written in JSON.
QString shownNumber(double number);

/// " Did you mean "x" or "y"?" for the known words that are nearest; empty without one.
QString didYouMean(const QString& wanted, const QStringList& known);

} // namespace uiutils::check
