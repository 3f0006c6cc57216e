#pragma once

#include <bus/bus_export.h>

#include <QString>

namespace kiv::bus {

/// The bus name of a service, "org.uiutils.kiv." and the service's own name, in which letters and digits of ASCII stand
/// for themselves and every other byte of the UTF-8, also a digit at the beginning, for "_" and two hexadecimal digits.
/// Empty when the service's name is empty or the result longer than the 255 bytes that a bus allows.
KIVBUS_EXPORT QString serviceBusName(const QString& service);

} // namespace kiv::bus
