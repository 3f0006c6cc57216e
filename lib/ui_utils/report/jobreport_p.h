#pragma once

#include <QByteArray>
#include <QString>

namespace uiutils {

/// Attaches an XML report in UTF-8 to the active job. First the report is checked against the schema at the instrument
/// path `schemaPath`, if that is not empty. Waits for the base manager for at most KIVClientInterface::callTimeout.
///
/// Returns false if there is no active job, if the schema cannot be used or does not allow the report, or if the base
/// manager rejects it. `reason`, which may be null, then says why, for the user.
bool attachToJob(const QByteArray& xml, const QString& schemaPath, QString* reason);

} // namespace uiutils
