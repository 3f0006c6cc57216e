#pragma once

#include <QString>
#include <QStringList>

class BaseFormatter;

namespace kiv::formatters {

/// A new formatter, owned by the caller, or null for an unknown name:
///
/// | name | 12345.678 reads |
/// |---|---|
/// | decimal | 12,345.678 |
/// | scientific | 1.234568e+04 |
/// | si | 12.346 k |
/// | dB, dBm, percent | 12,345.68 dB, 12,345.68 dBm, 12,345.68 % |
/// | duration (in seconds) | 3:25:45.678 |
/// | frequency (in Hz), distance (in m), bitrate (in bit/s) | 12.346 kHz, 12.346 km, 12.346 kbit/s |
///
/// "decimal", "scientific" and "si" accept a unit after a colon: "si:V".
BaseFormatter* create(const QString& name);

/// The names that create() knows, without units.
QStringList names();

} // namespace kiv::formatters
