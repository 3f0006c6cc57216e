#pragma once

#include <QJsonObject>
#include <QString>
#include <QVariant>

namespace kiv::embedded {

/// Any name as a file name of at most 200 bytes: characters that a file name cannot contain become "%" and their code,
/// and the end of a name that is too long becomes a checksum. Different names give different file names.
QString escapedFileName(const QString& name);

/// "FOLDER/SERVICE.state.json".
QString stateFilePath(const QString& folder, const QString& service);

/// The value as JSON; undefined for what a file cannot hold: no value, or a number that is not finite.
QJsonValue storableValue(const QVariant& value);

/// Reads the values by item id; none when there is no file. A file that cannot be used is renamed to "PATH.damaged",
/// or, when that exists, to "PATH.damaged-2" and so on. Returns false, with the reason in `problem`, when it could not
/// be renamed.
bool readStateFile(const QString& path, QJsonObject* values, QString* problem);

/// Writes the values so that the file always holds either its old contents or all of the new ones; creates the folder.
/// Returns false, with the reason in `error`, on failure.
bool writeStateFile(const QString& path, const QString& service, const QJsonObject& values, QString* error);

} // namespace kiv::embedded
