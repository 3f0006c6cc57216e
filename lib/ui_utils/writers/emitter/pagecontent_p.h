#pragma once

#include <QByteArray>
#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QTransform>
#include <QVector>

class QPainterPath;
class QPen;

namespace uiutils::pdf {

class EmbeddedFont;

/// The content of a page: the one place that knows the operators. Places are in units of the layout, from the page's
/// top left corner.
class PageContent
{
public:
    explicit PageContent(qreal unitsOfAPoint);

    /// In units, of the page that begins.
    void setHeight(qreal height) { m_height = height; }

    void fill(const QVector<QRectF>& rectangles, const QColor& color);
    void fill(const QPainterPath& path, const QColor& color);
    /// Along the path with the pen's colour, width, dashes, ends and joins.
    void stroke(const QPainterPath& path, const QPen& pen);
    void image(const QByteArray& name, const QRectF& place);

    /// Glyphs of a font in a row, with the numbers by which the distances after them differ from their widths, in
    /// thousandths of the size.
    struct Row
    {
        const EmbeddedFont* font;
        /// In points.
        qreal size;
        QVector<quint16> glyphs;
        /// As many as glyphs, or none.
        QVector<float> gaps;
        /// Whether the outlines are thickened, because the font has no bold face.
        bool isThickened = false;
    };
    void show(const Row& row, const QPointF& baseLine, const QColor& color);
    /// Text that is not seen but copied, as wide as `width`, which it has without stretching if it is `natural`.
    void showInvisibly(const Row& row, const QPointF& baseLine, qreal natural, qreal width);

    /// What stands between a begin and its end().
    enum Holds { Text, Anything };
    /// Content with this number on its page. It stands for `text`, unless that is null.
    void beginMarked(const char* tag, int number, Holds holds, const QString& text = {});
    /// Whether nothing has been drawn since beginMarked().
    bool isMarkEmpty() const { return m_bytes.size() == m_markEnd; }
    /// Takes back the beginning of a mark that is empty.
    void dropMark();
    /// What is not content of the document, such as lines and page numbers.
    void beginArtifact(const QByteArray& properties, Holds holds);
    /// Text that stands for another, outside of marked content.
    void beginText(const QString& text);
    void end();

    /// Between these, everything is transformed and clipped.
    void save();
    void transform(const QTransform& transform);
    void clip(const QPainterPath& path);
    void restore();

    /// The names of the pictures since take(), each once.
    const QVector<QByteArray>& images() const { return m_images; }
    /// The bytes so far; nothing is left.
    QByteArray take();

private:
    /// What readers keep from one operator to the next.
    struct State
    {
        QRgb fill = 0xff000000;
        const EmbeddedFont* font = nullptr;
        qreal size = 0;
    };

    qint64 across(qreal x) const;
    qint64 up(qreal y) const;
    void setFill(const QColor& color);
    void setPen(const QPen& pen);
    void beginMark(Holds holds);
    void beginTextObject();
    void endTextObject();
    void moveTo(const QPointF& baseLine);
    void appendCodes(const Row& row, int begin, int end);
    void appendRow(const Row& row);
    void thicken(const Row& row, const QColor& color);
    void appendPath(const QPainterPath& path);

    qreal m_scale;
    qreal m_height = 0;
    QByteArray m_bytes;
    State m_state;
    QVector<State> m_saved;
    bool m_isText = false;
    QVector<QByteArray> m_images;
    QVector<Holds> m_marks;
    // Where the last mark with a number begins and ends.
    int m_markBegin = 0;
    int m_markEnd = 0;
    // Where the last row of the text object begins, in hundredths of a point.
    qint64 m_lineX = 0;
    qint64 m_lineY = 0;
};

} // namespace uiutils::pdf
