#pragma once

#include <QJsonObject>
#include <QString>

namespace kiv::embedded {

/// Checks `document` against the JSON Schema. Returns an empty text when it conforms, else the place of the offending
/// value as a JSON pointer, a colon, a blank and the reason.
QString schemaViolation(const QJsonObject& schema, const QJsonObject& document);

} // namespace kiv::embedded
