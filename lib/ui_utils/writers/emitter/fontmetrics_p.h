#pragma once

#include "writers/emitter/fontprogram_p.h"

namespace uiutils::pdf {

/// What the descriptor of a font says. Lengths are in thousandths of the em, upwards.
struct FontMetrics
{
    /// Fit for a name in a PDF file, never empty.
    QByteArray postScriptName;
    int left = 0;
    int bottom = 0;
    int right = 0;
    int top = 0;
    int ascent = 0;
    /// Negative below the base line.
    int descent = 0;
    int capHeight = 0;
    /// Estimated from the weight, because fonts do not state it.
    int stemWidth = 0;
    /// Degrees, negative for letters that lean to the right.
    double italicAngle = 0;
    /// The flags of the descriptor. The font counts as symbolic, because its glyphs are chosen by number.
    quint32 flags = 0;
};

FontMetrics fontMetrics(const FontTables& tables);
FontMetrics fontMetrics(const QRawFont& font);

/// The advances of glyphs as the font states them, without kerning and hints, in thousandths of the em; 0 for glyphs
/// that it lacks. They need one table, which may take 250 kB.
QVector<double> glyphWidths(const FontTables& tables, const QVector<quint16>& glyphs);
QVector<double> glyphWidths(const QRawFont& font, const QVector<quint16>& glyphs);

} // namespace uiutils::pdf
