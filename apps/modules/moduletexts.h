#pragma once

#include "modules/moduleplan.h"

#include <QByteArray>
#include <QString>

namespace uiutils::modules {

/// Stands in the first line of every file, behind what begins a comment.
extern const QLatin1String mark;

// The texts of the files of a module.

/// What belongs to the module; `import` is its complete name, for example "Instrument.Optical".
QByteArray directoryText(const Module& module, const QString& import);
/// The singleton, which QML runs.
QByteArray singletonText(const Module& module);
/// What editors and other tools read without running anything.
QByteArray typesText(const Module& module, const QString& import);

} // namespace uiutils::modules
