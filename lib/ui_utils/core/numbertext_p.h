#pragma once

#include <QStringView>

namespace uiutils {

/// Whether the text is a number, with a unit or without: "-3", "1,234.5 Mbit/s", "1e-9".
bool isNumber(QStringView text);

} // namespace uiutils
