#pragma once

#include <QLatin1String>

/// Instrument paths that the demo reads and writes by itself.
namespace uiutils::demo::places {

inline const QLatin1String usb("/mnt/usb/");
inline const QLatin1String screenshots("/cust/public/screenshots/");
inline const QLatin1String reportSettings("/cust/private/lastconfigs/reportSettings/");
inline const QLatin1String images("/base/qml/common/images/");
inline const QLatin1String logo("/base/qml/common/images/Norda_Color-medium.png");

} // namespace uiutils::demo::places
