#pragma once

#include "servicedescription.h"

namespace kiv::embedded {

/// A value in another type, or a few words on why it cannot be converted ("not a number").
struct Conversion
{
    QVariant value;
    QString problem;
};

/// Whether two values have one type and are equal to the last bit.
bool isSame(const QVariant& a, const QVariant& b);

/// Converts to a type, with `members` for aggregates and tables. Texts are read as in the C locale. A double may be NaN
/// or infinite, which callers may reject. An invalid value cannot be converted.
Conversion convertToType(unsigned type, const QVector<MemberDescription>& members, const QVariant& value);

/// The same for a value that the service itself reports, which may also be none: invalid, or null in JSON.
Conversion convertReported(unsigned type, const QVector<MemberDescription>& members, const QVariant& value);

/// An error in an element of a list. `index` counts from 0; users count from 1.
QString atElement(int index, const QString& problem);

} // namespace kiv::embedded
