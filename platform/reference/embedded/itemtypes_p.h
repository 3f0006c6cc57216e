#pragma once

#include <QString>

namespace kiv::embedded {

/// The KIVClientItem::TypeCode of a type as service files name it; TypeNone for an unknown name.
unsigned typeCode(const QString& type);

/// Whether it is the type of a text, a truth value or a number, as members of records have it.
bool isSimpleType(unsigned type);

/// Of an array the type of its elements, else the type itself.
unsigned elementType(unsigned type);

} // namespace kiv::embedded
