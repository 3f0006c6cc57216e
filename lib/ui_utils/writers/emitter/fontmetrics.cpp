#include "writers/emitter/fontmetrics_p.h"

#include "writers/emitter/fontfacts_p.h"
#include "writers/emitter/fonttable_p.h"

#include <QtMath>

namespace uiutils::pdf {

namespace {

constexpr int maximumNameLength = 63;

QByteArray asName(const QString& text)
{
    QByteArray name;
    for (const QChar c : text) {
        const bool isDelimiter = QStringLiteral("()<>[]{}/%#").contains(c);
        if (c.unicode() > 0x20 && c.unicode() < 0x7f && !isDelimiter && name.size() < maximumNameLength)
            name.append(char(c.unicode()));
    }
    return name;
}

QString decoded(const QByteArray& bytes, bool isUtf16)
{
    if (!isUtf16)
        return QString::fromLatin1(bytes);
    const FontTable units(bytes);
    QString text;
    for (qint64 at = 0; at < units.size(); at += 2)
        text.append(QChar(units.u16(at)));
    return text;
}

/// The PostScript name; empty if there is none that fits.
QByteArray statedName(const FontTable& names)
{
    constexpr quint16 postScriptId = 6;
    constexpr quint16 macintosh = 1;
    const int count = names.u16(2);
    for (int i = 0; i < count; ++i) {
        const qint64 record = 6 + i * 12;
        if (names.u16(record + 6) != postScriptId)
            continue;
        const QByteArray bytes = names.bytes(names.u16(4) + names.u16(record + 10), names.u16(record + 8));
        const QByteArray name = asName(decoded(bytes, names.u16(record) != macintosh));
        if (!name.isEmpty())
            return name;
    }
    return {};
}

quint32 flagsOf(const FontTable& head, const FontTable& post)
{
    constexpr quint32 fixedPitch = 1U << 0;
    constexpr quint32 symbolic = 1U << 2;
    constexpr quint32 italic = 1U << 6;
    const bool isItalic = (head.u16(44) & 2) || post.i32(4) != 0;
    return symbolic | (post.u32(12) ? fixedPitch : 0) | (isItalic ? italic : 0);
}

/// Regular letters have stems of about 88 thousandths, bold ones of 166.
int stemWidth(const FontTable& os2)
{
    const int weight = os2.u16(4) ? qBound(100, int(os2.u16(4)), 900) : 400;
    return 50 + qRound(weight * weight / 4225.0);
}

} // namespace

FontMetrics fontMetrics(const FontTables& tables)
{
    const int unitsPerEm = fontFacts(tables).unitsPerEm;
    const FontTable head(tables("head"));
    const FontTable hhea(tables("hhea"));
    const FontTable os2(tables("OS/2"));
    const FontTable post(tables("post"));
    const auto scaled = [unitsPerEm](int units) { return qRound(units * 1000.0 / unitsPerEm); };
    FontMetrics metrics;
    metrics.postScriptName = statedName(FontTable(tables("name")));
    if (metrics.postScriptName.isEmpty())
        metrics.postScriptName = "Font";
    metrics.left = scaled(head.i16(36));
    metrics.bottom = scaled(head.i16(38));
    metrics.right = scaled(head.i16(40));
    metrics.top = scaled(head.i16(42));
    metrics.ascent = scaled(hhea.i16(4));
    metrics.descent = scaled(hhea.i16(6));
    const int capHeight = os2.u16(0) >= 2 ? scaled(os2.i16(88)) : 0;
    metrics.capHeight = capHeight > 0 ? capHeight : metrics.ascent;
    metrics.stemWidth = stemWidth(os2);
    metrics.italicAngle = post.i32(4) / 65536.0;
    metrics.flags = flagsOf(head, post);
    return metrics;
}

FontMetrics fontMetrics(const QRawFont& font)
{
    return fontMetrics(tablesOf(font));
}

QVector<double> glyphWidths(const FontTables& tables, const QVector<quint16>& glyphs)
{
    const FontFacts facts = fontFacts(tables);
    const int stated = FontTable(tables("hhea")).u16(34);
    const FontTable hmtx(tables("hmtx"));
    QVector<double> widths;
    widths.reserve(glyphs.size());
    for (const quint16 glyph : glyphs) {
        // The last width stated holds for all further glyphs.
        const bool isPresent = glyph < facts.glyphCount && stated > 0;
        const int units = isPresent ? hmtx.u16(qint64(qMin(int(glyph), stated - 1)) * 4) : 0;
        widths.append(units * 1000.0 / facts.unitsPerEm);
    }
    return widths;
}

QVector<double> glyphWidths(const QRawFont& font, const QVector<quint16>& glyphs)
{
    return glyphWidths(tablesOf(font), glyphs);
}

} // namespace uiutils::pdf
