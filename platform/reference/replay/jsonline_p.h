#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

namespace kiv::replay {

// A line of a recording is written a piece at a time. A tree of JSON values for each change would take longer than
// everything else.

/// Appends a JSON string. What a terminal would obey is escaped, so that a recording can be read on one.
void appendText(QByteArray* line, const QString& text);

/// Appends a value as JSON, a number so that it is read to the last bit. JSON has no infinity and no NaN: they become
/// texts, which the conversion to a number reads. Null for an invalid value.
void appendValue(QByteArray* line, const QVariant& value);

/// Appends a comma, the name and the value.
void appendField(QByteArray* line, const char* name, const QVariant& value);

} // namespace kiv::replay
