#pragma once

#include <QByteArray>
#include <QString>

namespace uiutils {

/// Hands an XML report in UTF-8 to the active job. It is checked first against the schema at the instrument path
/// `schemaPath`, where that is not empty. Waits for the base manager for at most KIVClientInterface::callTimeout.
///
/// Returns false when there is no active job, the schema cannot be used or does not allow the report, or the base
/// manager refuses it; `reason`, which may be null, then says which, in words for the user.
bool attachToJob(const QByteArray& xml, const QString& schemaPath, QString* reason);

} // namespace uiutils
