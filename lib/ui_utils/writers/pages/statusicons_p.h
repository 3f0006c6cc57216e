#pragma once

#include <QByteArray>
#include <QLatin1String>
#include <QString>

namespace uiutils {

/// The instrument path of the icon that shows a cell's status (16 pass, 32 marginal, 64 fail); empty for any other.
QLatin1String statusIconPath(int status);

/// The bytes of an icon or logo at an instrument path; none when it cannot be read, is no regular file or is larger
/// than a mebibyte.
QByteArray readIcon(const QString& path);

} // namespace uiutils
