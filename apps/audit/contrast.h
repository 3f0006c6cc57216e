#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

namespace uiutils::audit {

/// The ratio of the luminances of two opaque colours, as the guidelines for accessible contents define it: 1 to 21.
double contrastOf(const QColor& one, const QColor& other);

/// A colour painted with an opacity (0 to 1) over an opaque one.
QColor composed(const QColor& upper, double opacity, const QColor& lower);

/// The colour that most pixels of the area have, those of a text in that colour aside: what is behind the text. Where
/// nearly all pixels have the text's colour, it is that colour. Invalid for an empty area.
QColor colorBehind(const QImage& picture, const QRect& area, const QColor& text);

} // namespace uiutils::audit
