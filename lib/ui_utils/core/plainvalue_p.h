#pragma once

#include <QVariant>

namespace uiutils {

/// `value` without the wrapper that QML puts around its own arrays and objects, which is valid in one engine only.
QVariant plainValue(const QVariant& value);

/// Whether two values have the same type and are equal. Numbers are compared exactly; QVariant has a tolerance.
bool isSameValue(const QVariant& a, const QVariant& b);

/// A text as a value of `type` if nothing is lost by that ("42" as 42, but not "1.7" as 2); anything else unchanged.
QVariant readValue(const QVariant& value, int type);

} // namespace uiutils
