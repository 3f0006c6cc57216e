#pragma once

#include "check/services/jsontree.h"

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

} // namespace uiutils::check
