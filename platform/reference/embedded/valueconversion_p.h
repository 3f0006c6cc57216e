#pragma once

#include "servicedescription.h"

namespace kiv::embedded {

/// A value in another type, or a few words on why it has none there ("not a number").
struct Conversion
{
    QVariant value;
    QString problem;
};

/// Whether two values are of one type and equal to the last bit.
bool isSame(const QVariant& a, const QVariant& b);

/// Converts to a type, with `members` for records and tables. Texts are read as in the C locale. A double may be NaN or
/// infinite: that is for whoever wants it to refuse. A value that is invalid does not convert.
Conversion convertToType(unsigned type, const QVector<MemberDescription>& members, const QVariant& value);

/// What is wrong with an element of a list, counted from 0, for the user, who counts from 1.
QString atElement(int index, const QString& problem);

} // namespace kiv::embedded
