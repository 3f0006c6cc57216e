#include "writers/emitter/pagecontent_p.h"

#include "writers/emitter/embeddedfont_p.h"
#include "writers/emitter/pdfsyntax_p.h"

#include <QPainterPath>
#include <QPen>

#include <cmath>

namespace uiutils::pdf {

namespace {

/// Of a point.
constexpr qreal hundredths = 100;

void appendEscaped(QByteArray& bytes, uchar byte)
{
    switch (byte) {
    case '(':
    case ')':
    case '\\':
        bytes += '\\';
        break;
    case '\r':
        // A reader takes a bare one for a line feed.
        bytes += "\\r";
        return;
    default:
        break;
    }
    bytes += char(byte);
}

/// As exactly as pictures have it.
void appendColor(QByteArray& bytes, const QColor& color)
{
    for (const int part : {color.red(), color.green(), color.blue()}) {
        bytes += part == 0 || part == 255 ? QByteArray::number(part / 255)
                                          : QByteArray::number(part / 255.0, 'f', 3).mid(1);
        bytes += ' ';
    }
}

qint64 toHundredths(qreal value)
{
    constexpr qreal farthest = 1e7;
    return std::isfinite(value) ? std::llround(qBound(-farthest, value, farthest) * hundredths) : 0;
}

} // namespace

PageContent::PageContent(qreal unitsOfAPoint)
    : m_scale(1 / unitsOfAPoint)
{
}

qint64 PageContent::across(qreal x) const
{
    return toHundredths(x * m_scale);
}

qint64 PageContent::up(qreal y) const
{
    return toHundredths((m_height - y) * m_scale);
}

void PageContent::setFill(const QColor& color)
{
    const QRgb rgb = color.rgb();
    if (m_state.fill == rgb)
        return;
    m_state.fill = rgb;
    appendColor(m_bytes, color);
    m_bytes += "rg\n";
}

void PageContent::fill(const QVector<QRectF>& rectangles, const QColor& color)
{
    endTextObject();
    setFill(color);
    for (const QRectF& rectangle : rectangles) {
        const qint64 left = across(rectangle.left());
        const qint64 bottom = up(rectangle.bottom());
        for (const qint64 number : {left, bottom, across(rectangle.right()) - left, up(rectangle.top()) - bottom}) {
            appendHundredths(m_bytes, number);
            m_bytes += ' ';
        }
        m_bytes += "re\n";
    }
    m_bytes += "f\n";
}

void PageContent::appendPath(const QPainterPath& path)
{
    const auto point = [&](int i) {
        const QPainterPath::Element& element = path.elementAt(i);
        appendHundredths(m_bytes, across(element.x));
        m_bytes += ' ';
        appendHundredths(m_bytes, up(element.y));
        m_bytes += ' ';
    };
    for (int i = 0; i < path.elementCount(); ++i) {
        point(i);
        switch (path.elementAt(i).type) {
        case QPainterPath::MoveToElement:
            m_bytes += "m\n";
            break;
        case QPainterPath::LineToElement:
            m_bytes += "l\n";
            break;
        default:
            point(++i);
            point(++i);
            m_bytes += "c\n";
            break;
        }
    }
}

void PageContent::fill(const QPainterPath& path, const QColor& color)
{
    if (path.isEmpty())
        return;
    endTextObject();
    setFill(color);
    appendPath(path);
    m_bytes += path.fillRule() == Qt::OddEvenFill ? "f*\n" : "f\n";
}

void PageContent::setPen(const QPen& pen)
{
    const qreal width = pen.widthF() * m_scale;
    const int cap = pen.capStyle() == Qt::FlatCap ? 0 : pen.capStyle() == Qt::RoundCap ? 1 : 2;
    const int join = pen.joinStyle() == Qt::RoundJoin ? 1 : pen.joinStyle() == Qt::BevelJoin ? 2 : 0;
    appendColor(m_bytes, pen.color());
    m_bytes += "RG ";
    appendNumber(m_bytes, width);
    m_bytes += " w " + QByteArray::number(cap) + " J " + QByteArray::number(join) + " j";
    if (pen.style() != Qt::SolidLine) {
        m_bytes += " [";
        const QVector<qreal> dashes = pen.dashPattern();
        for (const qreal dash : dashes) {
            appendNumber(m_bytes, dash * width);
            m_bytes += ' ';
        }
        m_bytes += "] ";
        appendNumber(m_bytes, pen.dashOffset() * width);
        m_bytes += " d";
    }
    m_bytes += '\n';
}

void PageContent::stroke(const QPainterPath& path, const QPen& pen)
{
    if (path.isEmpty())
        return;
    endTextObject();
    m_bytes += "q ";
    setPen(pen);
    appendPath(path);
    m_bytes += "S Q\n";
}

void PageContent::clip(const QPainterPath& path)
{
    endTextObject();
    if (path.isEmpty())
        m_bytes += "0 0 0 0 re\n";
    appendPath(path);
    m_bytes += path.fillRule() == Qt::OddEvenFill ? "W* n\n" : "W n\n";
}

void PageContent::image(const QByteArray& name, const QRectF& place)
{
    endTextObject();
    m_bytes += "q ";
    const qint64 left = across(place.left());
    const qint64 bottom = up(place.bottom());
    for (const qint64 number :
            {across(place.right()) - left, qint64(0), qint64(0), up(place.top()) - bottom, left, bottom}) {
        appendHundredths(m_bytes, number);
        m_bytes += ' ';
    }
    m_bytes += "cm " + name + " Do Q\n";
    if (!m_images.contains(name))
        m_images += name;
}

void PageContent::beginTextObject()
{
    if (m_isText)
        return;
    m_isText = true;
    m_lineX = 0;
    m_lineY = 0;
    m_bytes += "BT\n";
}

void PageContent::endTextObject()
{
    if (!m_isText)
        return;
    m_isText = false;
    m_bytes += "ET\n";
}

void PageContent::moveTo(const QPointF& baseLine)
{
    const qint64 x = across(baseLine.x());
    const qint64 y = up(baseLine.y());
    appendHundredths(m_bytes, x - m_lineX);
    m_bytes += ' ';
    appendHundredths(m_bytes, y - m_lineY);
    m_bytes += " Td";
    m_lineX = x;
    m_lineY = y;
}

void PageContent::appendCodes(const Row& row, int begin, int end)
{
    m_bytes += '(';
    for (int i = begin; i < end; ++i) {
        appendEscaped(m_bytes, uchar(row.glyphs.at(i) >> 8));
        appendEscaped(m_bytes, uchar(row.glyphs.at(i)));
    }
    m_bytes += ')';
}

void PageContent::appendRow(const Row& row)
{
    const int count = row.glyphs.size();
    const auto hasGap = [&](int i) { return i < count - 1 && qAbs(row.gaps.value(i)) >= 0.5F; };
    int begin = 0;
    bool isArray = false;
    for (int i = 0; i < count; ++i) {
        if (!hasGap(i))
            continue;
        if (!isArray)
            m_bytes += '[';
        isArray = true;
        appendCodes(row, begin, i + 1);
        // A positive number moves back.
        appendInteger(m_bytes, -qRound(row.gaps.at(i)));
        begin = i + 1;
    }
    appendCodes(row, begin, count);
    m_bytes += isArray ? "]TJ\n" : "Tj\n";
}

void PageContent::show(const Row& row, const QPointF& baseLine, const QColor& color)
{
    if (row.glyphs.isEmpty())
        return;
    beginTextObject();
    setFill(color);
    if (m_state.font != row.font || !qFuzzyCompare(m_state.size, row.size)) {
        m_state.font = row.font;
        m_state.size = row.size;
        m_bytes += row.font->name() + ' ';
        appendNumber(m_bytes, row.size);
        m_bytes += " Tf\n";
    }
    if (row.isThickened)
        thicken(row, color);
    moveTo(baseLine);
    appendRow(row);
    if (row.isThickened)
        m_bytes += "0 Tr\n";
}

/// Outlines in the same colour, as wide as rasterizers make them.
void PageContent::thicken(const Row& row, const QColor& color)
{
    constexpr qreal share = 24;
    appendColor(m_bytes, color);
    m_bytes += "RG ";
    appendNumber(m_bytes, row.size / share);
    m_bytes += " w 2 Tr\n";
}

void PageContent::showInvisibly(const Row& row, const QPointF& baseLine, qreal natural, qreal width)
{
    if (row.glyphs.isEmpty() || natural <= 0)
        return;
    beginTextObject();
    m_bytes += "3 Tr ";
    appendNumber(m_bytes, 100 * width / natural);
    m_bytes += " Tz\n";
    show(row, baseLine, QColor::fromRgb(m_state.fill));
    m_bytes += "0 Tr 100 Tz\n";
}

/// Marks and text objects must not overlap: a mark of text is inside one, any other outside of all.
void PageContent::beginMark(Holds holds)
{
    m_marks += holds;
    if (holds == Text)
        beginTextObject();
    else
        endTextObject();
}

void PageContent::beginMarked(const char* tag, int number, Holds holds, const QString& text)
{
    beginMark(holds);
    m_markBegin = m_bytes.size();
    // Some readers look for a text in this tag only.
    m_bytes += text.isNull() ? tag : "/Span";
    m_bytes += "<</MCID ";
    appendInteger(m_bytes, number);
    if (!text.isNull())
        m_bytes += "/ActualText" + textString(text);
    m_bytes += ">>BDC\n";
    m_markEnd = m_bytes.size();
}

void PageContent::dropMark()
{
    m_marks.removeLast();
    m_bytes.truncate(m_markBegin);
}

void PageContent::beginArtifact(const QByteArray& properties, Holds holds)
{
    beginMark(holds);
    m_bytes += properties.isEmpty() ? QByteArray("/Artifact BMC\n") : "/Artifact<<" + properties + ">>BDC\n";
}

void PageContent::beginText(const QString& text)
{
    beginMark(Text);
    m_bytes += "/Span<</ActualText" + textString(text) + ">>BDC\n";
}

void PageContent::end()
{
    if (m_marks.takeLast() == Anything)
        endTextObject();
    m_bytes += "EMC\n";
}

void PageContent::save()
{
    endTextObject();
    m_saved += m_state;
    m_bytes += "q\n";
}

void PageContent::transform(const QTransform& transform)
{
    endTextObject();
    // From the layout's coordinates, which go down, to the file's, which go up.
    const qreal height = m_height * m_scale;
    const qreal c = -transform.m21();
    const qreal d = transform.m22();
    const qreal e = transform.dx() * m_scale + transform.m21() * height;
    const qreal f = height - transform.dy() * m_scale - d * height;
    // Two decimals would be too coarse for factors.
    for (const qreal factor : {transform.m11(), -transform.m12(), c, d})
        m_bytes += QByteArray::number(std::isfinite(factor) ? factor : 0, 'f', 6) + ' ';
    appendNumbers(m_bytes, {e, f});
    m_bytes += "cm\n";
}

void PageContent::restore()
{
    endTextObject();
    m_state = m_saved.takeLast();
    m_bytes += "Q\n";
}

QByteArray PageContent::take()
{
    endTextObject();
    m_state = State();
    m_images.clear();
    return std::exchange(m_bytes, QByteArray());
}

} // namespace uiutils::pdf
