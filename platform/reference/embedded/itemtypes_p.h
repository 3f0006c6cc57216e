#pragma once

#include <QString>

namespace kiv::embedded {

/// The KIVClientItem::TypeCode of a type as service files name it; TypeNone for an unknown name.
unsigned typeCode(const QString& type);

/// Whether it is the type of a text, a Boolean or a number: the types of members of aggregates.
bool isSimpleType(unsigned type);

/// The type of an array's elements; for other types the type itself.
unsigned elementType(unsigned type);

} // namespace kiv::embedded
