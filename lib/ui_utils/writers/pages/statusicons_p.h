#pragma once

#include <QByteArray>
#include <QLatin1String>

namespace uiutils {

/// The instrument path of the icon that shows a code of Status; empty for None and any other number.
QLatin1String statusIconPath(int status);

/// The bytes of an icon or logo at an instrument path; none if it cannot be read, is not a regular file or has more
/// than 1 MiB.
QByteArray readIcon(const QString& path);

} // namespace uiutils
