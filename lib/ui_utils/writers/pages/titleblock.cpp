#include "writers/pages/titleblock_p.h"

#include "writers/pages/pagecanvas_p.h"
#include "writers/pages/pagestyle_p.h"
#include "writers/pages/wrappedtext_p.h"

#include <QCoreApplication>

namespace uiutils {

namespace {

/// In units of the device, for which the logo is made.
constexpr qreal logoHeight = 32;
constexpr int columns = 2;
constexpr int maximumTitleLines = 5;
constexpr int maximumFieldLines = 8;

} // namespace

TitleBlock::TitleBlock(const Contents& contents)
    : m_contents(contents)
{
}

TitleBlock::~TitleBlock() = default;

qreal TitleBlock::logoWidth() const
{
    const QSize size = m_contents.logo.size();
    return size.isEmpty() ? 0 : qMin(logoHeight * size.width() / size.height(), m_width / 2);
}

void TitleBlock::measure(const PageStyle& style, const QSizeF& page)
{
    const qreal gap = style.points(6);
    m_width = page.width();
    const qreal besideLogo = m_width - logoWidth() - (logoWidth() > 0 ? 2 * gap : 0);
    m_shownDocumentTitle = WrappedText::elided(style.documentTitle, m_contents.documentTitle, besideLogo, 1);
    m_headHeight = qMax(logoHeight, style.documentTitle.lineHeight()) + gap;

    m_titleTop = m_headHeight + style.points(1.5) + gap;
    m_shownTitle = WrappedText::elided(style.headings[0], m_contents.title, m_width, maximumTitleLines);
    m_titleLines = m_shownTitle.isEmpty() ? 0 : WrappedText(style.headings[0], m_shownTitle, m_width).lineCount();
    m_height = m_titleTop + m_titleLines * style.headings[0].lineHeight();
    measureFields(style, page.width());
    m_height += style.points(4);
}

void TitleBlock::measureFields(const PageStyle& style, qreal pageWidth)
{
    const qreal gap = style.points(8);
    const qreal columnWidth = (pageWidth - gap * (columns - 1)) / columns;
    m_labelWidth = 0;
    for (ReportField& field : m_contents.fields)
        m_labelWidth = qMax(m_labelWidth, WrappedText::naturalWidth(style.bold, field.label));
    m_labelWidth = qMin(m_labelWidth + gap, columnWidth / 2);
    m_textWidth = columnWidth - m_labelWidth;

    m_places.clear();
    qreal top = m_height + (m_contents.fields.isEmpty() ? 0 : style.points(4));
    for (int first = 0; first < m_contents.fields.size(); first += columns) {
        int lines = 1;
        const int end = qMin(first + columns, m_contents.fields.size());
        for (int i = first; i < end; ++i) {
            ReportField& field = m_contents.fields[i];
            field.label = WrappedText::elided(style.bold, field.label, m_labelWidth, maximumFieldLines);
            const qreal room = m_textWidth - (style.hasStatusIcon(field.status) ? style.body.lineHeight() + gap : 0);
            field.text = WrappedText::elided(style.body, field.text, room, maximumFieldLines);
            lines = qMax(lines,
                    qMax(WrappedText(style.bold, field.label, m_labelWidth).lineCount(),
                            WrappedText(style.body, field.text, room).lineCount()));
            const qreal left = (i - first) * (columnWidth + gap);
            m_places.append({{left, top}, {left + m_labelWidth, top}, lines});
        }
        top += lines * style.body.lineHeight() + style.points(2);
    }
    m_height = top;
}

ReportItem::Portion TitleBlock::split(const Position& begin, qreal room, bool isWholePage) const
{
    const bool fits = m_height <= room || isWholePage;
    return fits ? Portion {begin, end(), m_height} : Portion {begin, begin, 0};
}

/// A rectangle from the block's top left corner, where it is in a report that is read from that side.
QRectF TitleBlock::placed(const PageStyle& style, const QRectF& rectangle) const
{
    const qreal left = m_width - rectangle.right();
    return style.isMirrored() ? QRectF(QPointF(left, rectangle.top()), rectangle.size()) : rectangle;
}

void TitleBlock::draw(PageCanvas& canvas, const Portion&, const QPointF& topLeft) const
{
    const PageStyle& style = canvas.style();
    drawHead(canvas, topLeft);
    if (m_titleLines > 0) {
        const auto mark = canvas.structure().text("/H1");
        canvas.drawText(style.headings[0], m_shownTitle, topLeft + QPointF(0, m_titleTop), m_width, style.beginning(),
                style.ink, 0, m_titleLines);
    }
    canvas.structure().endText();
    for (int i = 0; i < m_places.size(); ++i)
        drawField(canvas, i, topLeft);
}

void TitleBlock::drawHead(PageCanvas& canvas, const QPointF& topLeft) const
{
    const PageStyle& style = canvas.style();
    if (logoWidth() > 0) {
        const QSizeF size = QSizeF(m_contents.logo.size()).scaled(logoWidth(), logoHeight, Qt::KeepAspectRatio);
        const auto mark = canvas.structure().figure(QCoreApplication::translate("ReportPDF", "Logo"));
        canvas.drawImage(m_contents.logo, placed(style, QRectF(QPointF(), size)).translated(topLeft));
    }
    const qreal textTop = m_headHeight - style.points(6) - style.documentTitle.lineHeight();
    {
        const auto mark = canvas.structure().text("/P");
        canvas.drawText(style.documentTitle, m_shownDocumentTitle, topLeft + QPointF(0, textTop), m_width,
                style.ending(), style.accent, 0, 1);
    }
    canvas.structure().endText();
    canvas.fill(QRectF(topLeft.x(), topLeft.y() + m_headHeight, m_width, style.points(1.5)), style.accent);
}

void TitleBlock::drawField(PageCanvas& canvas, int index, const QPointF& topLeft) const
{
    const PageStyle& style = canvas.style();
    const ReportField& field = m_contents.fields.at(index);
    const FieldPlace& place = m_places.at(index);
    const qreal line = style.body.lineHeight();
    QRectF text(place.text, QSizeF(m_textWidth, line));
    const bool hasIcon = style.hasStatusIcon(field.status);
    const QRectF icon = placed(style, QRectF(place.text, QSizeF(line, line))).translated(topLeft);
    if (hasIcon) {
        canvas.drawStatusIcon(field.status, icon);
        text.adjust(line + style.points(4), 0, -style.points(4), 0);
    }
    {
        const auto mark = canvas.structure().text("/P");
        const QRectF label = placed(style, QRectF(place.label, QSizeF(m_labelWidth, line)));
        canvas.drawText(style.bold, field.label, topLeft + label.topLeft(), m_labelWidth, style.beginning(),
                style.mutedInk, 0, maximumFieldLines);
    }
    canvas.structure().endText();
    {
        const auto mark = canvas.structure().text("/P");
        if (hasIcon)
            canvas.drawStatusWord(field.status, field.text, icon);
        canvas.drawText(style.body, field.text, topLeft + placed(style, text).topLeft(), text.width(),
                style.beginning(), style.ink, 0, maximumFieldLines);
    }
    canvas.structure().endText();
}

} // namespace uiutils
