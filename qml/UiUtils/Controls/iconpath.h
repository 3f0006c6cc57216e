#pragma once

#include <QPainterPath>
#include <QStringRef>

namespace uiutils {

/// Reads the outline of a drawing, such as "M4 7 H20": the commands M, L, H, V, C, A and Z with absolute coordinates,
/// arcs of circles only. Returns what cannot be read in it, or an empty text.
QString readIconPath(const QStringRef& text, QPainterPath* path);

} // namespace uiutils
