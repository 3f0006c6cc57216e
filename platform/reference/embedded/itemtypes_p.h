#pragma once

#include <kiv/kivclientitem.h>

#include <QString>

namespace kiv::embedded {

/// The KIVClientItem::TypeCode of a type as service files name it; TypeNone for an unknown name.
unsigned typeCode(const QString& type);

/// Whether it is the type of a text, a Boolean or a number: the types of members of aggregates.
bool isSimpleType(unsigned type);

/// The type of an array's elements; for other types the type itself.
unsigned elementType(unsigned type);

/// The quality of that name in service files; none for an unknown name.
KIVClientItem::Quality qualityNamed(const QString& name);

} // namespace kiv::embedded
