#include "writers/pages/shapedtext_p.h"

#include "writers/emitter/fontprogram_p.h"
#include "writers/emitter/pdfdocument_p.h"
#include "writers/pages/pagefont_p.h"

#include <QImage>
#include <QPainter>
#include <QPainterPathStroker>

namespace uiutils {

namespace {

/// Of a picture of a glyph: enough for a print.
constexpr int pixelsOfAPicture = 256;

int glyphsIn(const QList<QGlyphRun>& runs)
{
    int count = 0;
    for (const QGlyphRun& run : runs)
        count += run.glyphIndexes().size();
    return count;
}

/// Whether the first glyph is the same: then one of the two has all glyphs of the other.
bool hasSameGlyphs(const QList<QGlyphRun>& a, const QList<QGlyphRun>& b)
{
    return glyphsIn(a) > 0 && glyphsIn(b) > 0
            && a.constFirst().glyphIndexes().constFirst() == b.constFirst().glyphIndexes().constFirst()
            && a.constFirst().positions().constFirst() == b.constFirst().positions().constFirst();
}

/// What a file may say that a glyph stands for.
QString permitted(const QString& text)
{
    const bool isCharacter = text.isValidUtf16() && !text.contains(QChar(0)) && !text.contains(QChar(0xfeff))
            && !text.contains(QChar(0xfffe));
    return isCharacter ? text : QString(QChar(QChar::ReplacementCharacter));
}

int lengthAt(const QString& text, int at)
{
    return text.at(at).isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
}

/// Takes the character out of the text that the font shows by this glyph; empty if there is none.
QString takeCharacterOf(const QRawFont& raw, quint32 glyph, QString* text)
{
    for (int at = 0, length = 1; at < text->size(); at += length) {
        length = lengthAt(*text, at);
        const QString character = text->mid(at, length);
        if (raw.glyphIndexesForString(character) == QVector<quint32> {glyph}) {
            text->remove(at, length);
            return character;
        }
    }
    return {};
}

QString ownText(const QRawFont& raw, quint32 glyph, QString* text)
{
    const QString character = takeCharacterOf(raw, glyph, text);
    if (!character.isEmpty())
        return character;
    // Characters that nothing is drawn for have the glyph of the blank, which would then be read as one of them.
    if (raw.glyphIndexesForString(QStringLiteral(" ")) == QVector<quint32> {glyph})
        return QStringLiteral(" ");
    // Some letters are drawn in parts.
    QString parts = text->normalized(QString::NormalizationForm_KD);
    const QString part = parts == *text ? QString() : takeCharacterOf(raw, glyph, &parts);
    if (!part.isEmpty())
        *text = parts;
    return part;
}

/// What each glyph of a cluster says: what the font's own table says, as other texts use the glyph too; those that are
/// not in it share what remains.
QStringList textsOfGlyphs(const QList<QGlyphRun>& runs, const QString& text)
{
    // No letter has as many marks.
    constexpr int longest = 32;
    QString rest = text;
    QStringList texts;
    for (const QGlyphRun& run : runs) {
        const QVector<quint32> glyphs = run.glyphIndexes();
        for (const quint32 glyph : glyphs)
            texts += text.size() > longest ? QString() : ownText(run.rawFont(), glyph, &rest);
    }
    int unknown = texts.count(QString());
    int at = 0;
    for (QString& share : texts) {
        if (!share.isEmpty())
            continue;
        const int length = at >= rest.size() ? 0 : --unknown > 0 ? lengthAt(rest, at) : rest.size() - at;
        share = length > 0 ? rest.mid(at, length) : QString(QChar(0x200b));
        at += length;
    }
    return texts;
}

bool isPlainGlyph(quint32 glyph)
{
    return glyph > 0 && glyph <= 0xffff;
}

/// What is printed for a character that no font has.
QPainterPath frameOf(const QRawFont& raw)
{
    QPainterPath box;
    box.addRect(raw.pixelSize() * 0.08, -raw.pixelSize() * 0.7, raw.pixelSize() * 0.5, raw.pixelSize() * 0.7);
    QPainterPathStroker pen;
    pen.setWidth(raw.pixelSize() * 0.05);
    return pen.createStroke(box);
}

} // namespace

void GlyphPictures::draw(pdf::DocumentWriter& writer)
{
    for (const GlyphPicture& picture : qAsConst(waiting)) {
        if (picture.image.isEmpty())
            writer.content().fill(picture.path, picture.color);
        else
            writer.content().image(picture.image, picture.place);
    }
    waiting.clear();
}

ShapedText::ShapedText(pdf::DocumentWriter& writer, const PageFont& font, GlyphPictures* pictures, QString* missing)
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
        // The second part of a ligature has no glyph, or the same one. That of a letter drawn in parts has all of them.
        if (!clusters.isEmpty() && (runs.isEmpty() || hasSameGlyphs(runs, clusters.constLast().runs))) {
            Cluster& last = clusters.last();
            last.text += text;
            last.runs = glyphsIn(runs) > glyphsIn(last.runs) ? runs : last.runs;
            continue;
        }
        const bool isReversed = !runs.isEmpty() && runs.constFirst().isRightToLeft();
        clusters += {text, runs, isReversed};
    }
    return clusters;
}

void ShapedText::drawWord(const QVector<Cluster>& clusters, int begin, int end)
{
    if (drawReversedLigature(clusters.at(begin)))
        return;
    bool isAsRead = true;
    QString text;
    for (int i = begin; i < end; ++i) {
        isAsRead = note(clusters.at(i)) && isAsRead;
        text += clusters.at(i).text;
    }
    if (!isAsRead)
        m_writer.beginText(text);
    for (int i = begin; i < end; ++i)
        drawCluster(clusters.at(i));
    if (!isAsRead)
        m_writer.endText();
}

/// Whether readers get the text from the glyphs.
bool ShapedText::note(const Cluster& cluster)
{
    const QStringList texts = textsOfGlyphs(cluster.runs, cluster.text);
    bool isNoted = !texts.isEmpty();
    int at = 0;
    for (const QGlyphRun& run : cluster.runs) {
        pdf::EmbeddedFont* const font = m_writer.font(run.rawFont());
        const QVector<quint32> glyphs = run.glyphIndexes();
        for (const quint32 glyph : glyphs) {
            const QString text = permitted(texts.at(at++));
            isNoted = font && isPlainGlyph(glyph) && font->use(quint16(glyph), text) && isNoted;
        }
    }
    return isNoted && texts.join(QString()) == cluster.text && permitted(cluster.text) == cluster.text;
}

/// Readers take the letters of one glyph from left to right, also where the others are taken from right to left. So
/// each gets a place of its own: the last one that of the glyph, and those before it are over its right part, unseen.
bool ShapedText::drawReversedLigature(const Cluster& cluster)
{
    const int letters = cluster.text.size();
    if (!cluster.isRightToLeft || letters < 2 || cluster.runs.size() != 1)
        return false;
    const QGlyphRun& run = cluster.runs.constFirst();
    const QRawFont raw = run.rawFont();
    pdf::EmbeddedFont* const font = m_writer.font(raw);
    const QVector<quint32> own = raw.glyphIndexesForString(cluster.text);
    const QVector<quint32> drawn = run.glyphIndexes();
    if (!font || drawn.size() != 1 || !isPlainGlyph(drawn.constFirst()) || own.size() != letters
            || !std::all_of(own.cbegin(), own.cend(), isPlainGlyph)
            || !std::all_of(cluster.text.cbegin(), cluster.text.cend(), [](QChar c) { return c.isLetter(); }))
        return false;
    const QVector<QPointF> widths = raw.advancesForGlyphIndexes(own);
    const qreal width = raw.advancesForGlyphIndexes(drawn).constFirst().x() / letters;
    const QPointF left = m_origin + run.positions().constFirst();
    for (int i = 0; i + 1 < letters; ++i) {
        font->use(quint16(own.at(i)), cluster.text.at(i));
        m_row = {font, raw.pixelSize() / m_writer.unitsOfAPoint(), {quint16(own.at(i))}, {}};
        m_writer.content().showInvisibly(m_row, left + QPointF(width * (letters - 1 - i), 0), widths.at(i).x(), width);
    }
    font->use(quint16(drawn.constFirst()), cluster.text.right(1));
    drawCluster(cluster);
    return true;
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

/// Readers copy text only from where a glyph is, and take what is not covered for a gap between words. Without a width,
/// the blank has its own.
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
    drawPlaceholder(at, raw.advancesForGlyphIndexes({glyph}).value(0).x());
    GlyphPicture picture;
    picture.color = m_color;
    // After a font of pictures was asked for an outline, its glyphs are empty for the rest of the process.
    if (glyph > 0 && pdf::embeddingOf(raw) == pdf::Embedding::NoOutlines) {
        picture.place = raw.boundingRect(glyph).translated(at);
        picture.image = picture.place.isEmpty() ? QByteArray() : pictureOf(raw, glyph);
    } else {
        picture.path = glyph == 0 ? frameOf(raw) : raw.pathForGlyph(glyph);
        picture.path.translate(at);
    }
    m_pictures->waiting += picture;
}

QByteArray ShapedText::pictureOf(const QRawFont& raw, quint32 glyph)
{
    const QString key = QStringList {raw.familyName(), raw.styleName(), QString::number(glyph)}.join(QLatin1Char('\n'));
    QByteArray& name = m_pictures->images[key];
    if (!name.isEmpty())
        return name;
    const QRectF bounds = raw.boundingRect(glyph);
    QImage image(pixelsOfAPicture, pixelsOfAPicture, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QGlyphRun run;
    run.setRawFont(raw);
    run.setGlyphIndexes({glyph});
    run.setPositions({QPointF()});
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(image.width() / bounds.width(), image.height() / bounds.height());
    painter.translate(-bounds.topLeft());
    painter.drawGlyphRun({}, run);
    painter.end();
    name = m_writer.image(image);
    return name;
}

} // namespace uiutils
