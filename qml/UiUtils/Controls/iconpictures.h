#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace uiutils {

/// The picture of an icon of the module; null for an empty name, without a side, and for an unknown name, which is
/// logged. Pictures that were made lately are kept: pages show the same icons. GUI thread.
QImage iconPicture(const QString& name, int side, const QColor& color, bool isMirrored);

} // namespace uiutils
