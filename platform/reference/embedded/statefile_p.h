#pragma once

#include <QJsonObject>
#include <QString>
#include <QVariant>

namespace kiv::embedded {

/// A name of any text as one file name of at most 200 bytes: what a file name cannot hold stands as "%" and its code,
/// and what is too long ends in a checksum instead. Different names give different file names.
QString safeFileName(const QString& name);

/// "FOLDER/SERVICE.state.json".
QString stateFilePath(const QString& folder, const QString& service);

/// The value as JSON; undefined for what a file cannot hold: no value, or a number that is not finite.
QJsonValue storableValue(const QVariant& value);

/// Reads the values by item id; none when there is no file. A file that cannot be used is moved to "PATH.damaged", or,
/// when that exists, to "PATH.damaged-2" and so on. Returns false, with the reason in `problem`, when it is in the way
/// still.
bool readStateFile(const QString& path, QJsonObject* values, QString* problem);

/// Writes the values so that, whatever happens, the file holds either what it held or all of them; makes the folder.
/// Returns false, with the reason in `error`, when that failed.
bool writeStateFile(const QString& path, const QString& service, const QJsonObject& values, QString* error);

} // namespace kiv::embedded
