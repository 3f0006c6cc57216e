#pragma once

#include <QString>

namespace uiutils {

/// "Pass", "Marginal" or "Fail" for a code of Status; else empty.
QString statusWord(int status);

} // namespace uiutils
