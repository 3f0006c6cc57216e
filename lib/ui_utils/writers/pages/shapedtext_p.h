#pragma once

#include "writers/emitter/pagecontent_p.h"

#include <QGlyphRun>
#include <QHash>
#include <QPainterPath>
#include <QString>
#include <QTextLayout>
#include <QVector>

namespace uiutils {

class PageFont;

namespace pdf {
class DocumentWriter;
}

/// What stands for text and is no text: a picture of a glyph without outlines, the outline of one that cannot be
/// embedded, the frame of a character that no font has. Drawn when the page's texts are complete, because a text
/// cannot hold it.
struct GlyphPicture
{
    /// The name of a picture of the file, or none.
    QByteArray image;
    QRectF place;
    QPainterPath path;
    QColor color;
};

struct GlyphPictures
{
    QVector<GlyphPicture> waiting;
    /// The names of pictures by face and glyph: each is stored once in a file.
    QHash<QString, QByteArray> images;

    /// Draws those that wait.
    void draw(pdf::DocumentWriter& writer);
};

/// Writes text that Qt has laid out, with the letters behind the glyphs in the order of reading.
class ShapedText
{
public:
    /// `font` has the glyph that stands for pictures, if it can be embedded. The pictures and the characters that no
    /// font has are added to the lists.
    ShapedText(pdf::DocumentWriter& writer, const PageFont& font, GlyphPictures* pictures, QString* missing);

    void draw(const QTextLayout& layout, int line, const QPointF& baseLine, const QColor& color);

private:
    /// What cannot be divided: a letter with its marks, a ligature.
    struct Cluster
    {
        QString text;
        QList<QGlyphRun> runs;
        bool isRightToLeft = false;
    };

    QVector<Cluster> clustersOf(const QTextLayout& layout, const QTextLine& line) const;
    void drawWord(const QVector<Cluster>& clusters, int begin, int end);
    bool note(const Cluster& cluster);
    bool drawReversedLigature(const Cluster& cluster);
    void drawCluster(const Cluster& cluster);
    void drawRun(const QGlyphRun& run, const QString& text);
    void drawPicture(const QRawFont& raw, quint32 glyph, const QPointF& at);
    QByteArray pictureOf(const QRawFont& raw, quint32 glyph);
    void drawPlaceholder(const QPointF& at, qreal width);

    pdf::DocumentWriter& m_writer;
    const PageFont& m_font;
    GlyphPictures* m_pictures;
    QString* m_missing;
    QPointF m_origin;
    QColor m_color;
    pdf::PageContent::Row m_row;
};

} // namespace uiutils
