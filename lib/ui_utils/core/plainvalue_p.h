#pragma once

#include <QVariant>

namespace uiutils {

/// `value` without the wrapping that QML gives its own arrays and objects, which is good for one engine only.
QVariant plainValue(const QVariant& value);

/// Whether two values are of one type and the same; numbers exactly, while QVariant compares them with a tolerance.
bool isSameValue(const QVariant& a, const QVariant& b);

/// A text as a value of `type` when nothing is lost by it ("42" as 42, but not "1.7" as 2); anything else unchanged.
QVariant readValue(const QVariant& value, int type);

} // namespace uiutils
