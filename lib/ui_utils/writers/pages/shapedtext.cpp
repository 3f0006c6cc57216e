#include "writers/pages/shapedtext_p.h"

#include "writers/emitter/pdfdocument_p.h"
#include "writers/pages/pagefont_p.h"

#include <QPainter>
#include <QPainterPathStroker>

namespace uiutils {

namespace {

/// Of a picture of a glyph: enough for a print.
constexpr int pixelsOfAPicture = 128;

bool isSameGlyph(const QList<QGlyphRun>& a, const QList<QGlyphRun>& b)
{
    return a.size() == 1 && b.size() == 1 && a.constFirst().glyphIndexes() == b.constFirst().glyphIndexes()
            && a.constFirst().positions() == b.constFirst().positions();
}

/// What a file may say that a glyph stands for.
QString glyphText(const QString& text)
{
    const bool isCharacter = text.isValidUtf16() && !text.contains(QChar(0)) && !text.contains(QChar(0xfeff))
            && !text.contains(QChar(0xfffe));
    return isCharacter ? text : QString(QChar(QChar::ReplacementCharacter));
}

bool isPlainGlyph(quint32 glyph)
{
    return glyph > 0 && glyph <= 0xffff;
}

} // namespace

void drawPictures(pdf::DocumentWriter& writer, const QVector<GlyphPicture>& pictures)
{
    for (const GlyphPicture& picture : pictures) {
        if (picture.image.isNull())
            writer.content().fill(picture.path, picture.color);
        else
            writer.content().image(writer.image(picture.image), picture.place);
    }
}

ShapedText::ShapedText(
        pdf::DocumentWriter& writer, const PageFont& font, QVector<GlyphPicture>* pictures, QString* missing)
    : m_writer(writer)
    , m_font(font)
    , m_pictures(pictures)
    , m_missing(missing)
{
}

void ShapedText::draw(const QTextLayout& layout, int line, const QPointF& baseLine, const QColor& color)
{
    const QTextLine shaped = layout.lineAt(line);
    m_origin = {baseLine.x(), baseLine.y() - shaped.ascent()};
    m_color = color;
    const QVector<Cluster> clusters = clustersOf(layout, shaped);
    for (int begin = 0, end = 0; begin < clusters.size(); begin = end) {
        // What is read from right to left is marked letter by letter: readers reverse whole words of it.
        const auto isLetter
                = [&](int i) { return !clusters.at(i).isRightToLeft && !clusters.at(i).text.at(0).isSpace(); };
        end = begin + 1;
        while (isLetter(begin) && end < clusters.size() && isLetter(end))
            ++end;
        drawWord(clusters, begin, end);
    }
}

QVector<ShapedText::Cluster> ShapedText::clustersOf(const QTextLayout& layout, const QTextLine& line) const
{
    QVector<Cluster> clusters;
    const int end = line.textStart() + line.textLength();
    for (int at = line.textStart(), next = at; at < end; at = next) {
        next = qBound(at + 1, layout.nextCursorPosition(at), end);
        const QString text = layout.text().mid(at, next - at);
        const QList<QGlyphRun> runs = line.glyphRuns(at, next - at);
        // The second part of a ligature has no glyph, or the same one.
        if (!clusters.isEmpty() && (runs.isEmpty() || isSameGlyph(runs, clusters.constLast().runs))) {
            clusters.last().text += text;
            continue;
        }
        const bool isReversed = !runs.isEmpty() && runs.constFirst().isRightToLeft();
        clusters += {text, runs, isReversed};
    }
    return clusters;
}

void ShapedText::drawWord(const QVector<Cluster>& clusters, int begin, int end)
{
    if (isReversedLigature(clusters.at(begin))) {
        drawReversedLigature(clusters.at(begin));
        return;
    }
    bool isAsRead = true;
    QString text;
    for (int i = begin; i < end; ++i) {
        isAsRead = note(clusters.at(i)) && isAsRead;
        text += clusters.at(i).text;
    }
    if (!isAsRead)
        m_writer.content().beginText(text);
    for (int i = begin; i < end; ++i)
        drawCluster(clusters.at(i));
    if (!isAsRead)
        m_writer.content().end();
}

bool ShapedText::isReversedLigature(const Cluster& cluster) const
{
    return cluster.isRightToLeft && cluster.text.size() > 1 && cluster.runs.size() == 1
            && cluster.runs.constFirst().glyphIndexes().size() == 1
            && isPlainGlyph(cluster.runs.constFirst().glyphIndexes().constFirst())
            && std::all_of(cluster.text.cbegin(), cluster.text.cend(), [](QChar c) { return c.isLetter(); });
}

/// Whether readers get the text from the glyphs.
bool ShapedText::note(const Cluster& cluster)
{
    int glyphs = 0;
    for (const QGlyphRun& run : cluster.runs)
        glyphs += run.glyphIndexes().size();
    const bool isOneToOne = glyphs == cluster.text.size();
    bool isAsRead = glyphs > 0 && (glyphs == 1 || isOneToOne);
    int at = 0;
    for (const QGlyphRun& run : cluster.runs) {
        pdf::EmbeddedFont* const font = m_writer.font(run.rawFont());
        const quint32 blank = run.rawFont().glyphIndexesForString(QStringLiteral(" ")).value(0);
        const QVector<quint32> indexes = run.glyphIndexes();
        for (const quint32 glyph : indexes) {
            const QString text
                    = glyphs == 1 ? cluster.text : QString(cluster.text.at(qMin(at++, cluster.text.size() - 1)));
            // Characters that nothing is drawn for have the glyph of the blank, which would then be read as one of
            // them.
            const QString own = glyph == blank ? QStringLiteral(" ") : glyphText(text);
            isAsRead = font && isPlainGlyph(glyph) && font->use(quint16(glyph), own) && own == text && isAsRead;
        }
    }
    return isAsRead;
}

/// Readers take the letters of one glyph from left to right, also where the others are taken from right to left. So
/// each gets a place of its own: the last one that of the glyph, and the ones before it blanks over its right part.
void ShapedText::drawReversedLigature(const Cluster& cluster)
{
    const QGlyphRun& run = cluster.runs.constFirst();
    const int letters = cluster.text.size();
    const qreal width = run.rawFont().advancesForGlyphIndexes(run.glyphIndexes()).constFirst().x() / letters;
    const QPointF left = m_origin + run.positions().constFirst();
    pdf::PageContent& content = m_writer.content();
    note(cluster);
    for (int i = 0; i < letters; ++i) {
        content.beginText(cluster.text.at(i));
        if (i + 1 < letters)
            drawPlaceholder(left + QPointF(width * (letters - 1 - i), 0), width);
        else
            drawCluster(cluster);
        content.end();
    }
}

void ShapedText::drawCluster(const Cluster& cluster)
{
    for (const QGlyphRun& run : cluster.runs)
        drawRun(run, cluster.text);
}

void ShapedText::drawRun(const QGlyphRun& run, const QString& text)
{
    const QRawFont raw = run.rawFont();
    const QVector<quint32> glyphs = run.glyphIndexes();
    const QVector<QPointF> positions = run.positions();
    const pdf::EmbeddedFont* const font = m_writer.font(raw);
    const bool isThickened = m_font.isThickened(raw);
    for (int i = 0; i < glyphs.size(); ++i) {
        const QPointF at = m_origin + positions.at(i);
        if (glyphs.at(i) == 0 && !m_missing->contains(text))
            *m_missing += text;
        if (!font || !isPlainGlyph(glyphs.at(i))) {
            drawPicture(raw, glyphs.at(i), at);
            continue;
        }
        m_row = {font, raw.pixelSize() / m_writer.unitsOfAPoint(), {quint16(glyphs.at(i))}, {}, isThickened};
        m_writer.content().show(m_row, at, m_color);
    }
}

/// Readers copy text only from where a glyph is. Without a width, the blank has its own.
void ShapedText::drawPlaceholder(const QPointF& at, qreal width)
{
    pdf::EmbeddedFont* const font = m_writer.font(m_font.raw());
    const PageFont::Glyph& blank = m_font.glyph(QLatin1Char(' '));
    if (!font || blank.advance <= 0)
        return;
    font->use(blank.index, QLatin1Char(' '));
    m_row = {font, m_font.size(), {blank.index}, {}};
    m_writer.content().showInvisibly(m_row, at, blank.advance, width > 0 ? width : blank.advance);
}

void ShapedText::drawPicture(const QRawFont& raw, quint32 glyph, const QPointF& at)
{
    drawPlaceholder(at);
    GlyphPicture picture;
    picture.color = m_color;
    picture.path = glyph == 0 ? QPainterPath() : raw.pathForGlyph(glyph);
    if (glyph == 0) {
        QPainterPath box;
        box.addRect(raw.pixelSize() * 0.08, -raw.pixelSize() * 0.7, raw.pixelSize() * 0.5, raw.pixelSize() * 0.7);
        QPainterPathStroker pen;
        pen.setWidth(raw.pixelSize() * 0.05);
        picture.path = pen.createStroke(box);
    }
    picture.path.translate(at);
    if (picture.path.isEmpty()) {
        const QRectF bounds = raw.boundingRect(glyph);
        picture.place = bounds.translated(at);
        picture.image = QImage(pixelsOfAPicture * 2, pixelsOfAPicture * 2, QImage::Format_ARGB32_Premultiplied);
        picture.image.fill(Qt::transparent);
        QGlyphRun run;
        run.setRawFont(raw);
        run.setGlyphIndexes({glyph});
        run.setPositions({QPointF()});
        QPainter painter(&picture.image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        if (!bounds.isEmpty()) {
            painter.scale(picture.image.width() / bounds.width(), picture.image.height() / bounds.height());
            painter.translate(-bounds.topLeft());
            painter.drawGlyphRun({}, run);
        }
    }
    *m_pictures += picture;
}

} // namespace uiutils
