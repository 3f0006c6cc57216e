#pragma once

#include "check/jsontree.h"

#include <QString>
#include <QVector>

namespace uiutils::check {

/// A place in a document that does not conform to a schema.
struct Violation
{
    /// In the text of the document.
    int offset = 0;
    /// What is allowed and what was found, for somebody who has never seen the schema.
    QString message;
};

/// Everything in `document` that does not conform to `schema`, a JSON schema with the keywords that
/// service-file.schema.json uses.
QVector<Violation> violations(const JsonNode& schema, const JsonNode& document);

/// A value as a message shows it: "the text "5"", "the number 2.5", "a list".
QString shownValue(const JsonNode& value);

/// A text in quotation marks, cut if it is long.
QString quoted(const QString& text);

/// A number as it is written in JSON.
QString shownNumber(double number);

/// " Did you mean "x" or "y"?" for the known words that are nearest; empty without one.
QString didYouMean(const QString& wanted, const QStringList& known);

} // namespace uiutils::check
