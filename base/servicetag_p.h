#pragma once

#include <QString>

namespace uiutils {

/// The beginning of the names of a service's items: the last part of a name such as "com.example.test", because QML
/// names contain no points.
inline QString tagOf(const QString& service)
{
    return service.section(QLatin1Char('.'), -1);
}

} // namespace uiutils
