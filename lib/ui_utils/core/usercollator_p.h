#pragma once

#include <QCollator>

namespace uiutils {

/// The order in which users look for names: that of the default QLocale, whatever the capitals, and with numbers in the
/// names by their size.
QCollator userCollator();

} // namespace uiutils
