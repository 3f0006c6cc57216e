#pragma once

#include <QMap>
#include <QString>

#include <optional>

/// The keys of a section and their values.
using IniSection = QMap<QString, QString>;

/// The sections of an INI file by their names. Comments begin with ";". Nothing if the file cannot be read.
std::optional<QMap<QString, IniSection>> readIni(const QString& path);

/// Sets the key "value" of sections, by their names, and leaves all other lines of the file as they are. The file is
/// the complete old or the complete new one. Returns false, with the reason in `problem`, if it cannot be written.
bool writeIniValues(const QString& path, const QMap<QString, QString>& values, QString* problem);
