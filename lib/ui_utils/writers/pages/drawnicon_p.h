#pragma once

#include <QImage>

namespace uiutils {

/// The icon of a code of Status, drawn without any file; null for None and any other number. The shapes differ, so that
/// a print without colours shows the status too: a disc with a tick, a triangle with an exclamation mark, a square with
/// a cross.
QImage drawnStatusIcon(int status);

} // namespace uiutils
