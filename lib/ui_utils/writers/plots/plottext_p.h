#pragma once

#include <QFontMetricsF>
#include <QStringList>

namespace uiutils {

/// Breaks a text into at most `most` lines of `width`, between words where that is possible. If more were needed, the
/// last one ends in "…". At least one line, an empty one for an empty text.
QStringList wrappedLines(const QString& text, const QFontMetricsF& metrics, double width, int most);

} // namespace uiutils
