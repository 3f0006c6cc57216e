#include "writers/pages/pageframe_p.h"

#include "writers/pages/pagecanvas_p.h"
#include "writers/pages/pagestyle_p.h"
#include "writers/pages/wrappedtext_p.h"

#include <QCoreApplication>

namespace uiutils {

namespace {

// In points.
constexpr qreal margin = 42;
constexpr qreal edge = 28;
constexpr qreal ruleDistance = 3;

} // namespace

PageFrame::PageFrame(const PageStyle& style, const QSizeF& paper, const Texts& texts)
    : m_style(style)
    , m_texts(texts)
    , m_left(style.points(margin))
    , m_width(paper.width() - 2 * m_left)
    , m_headerTop(style.points(edge))
    , m_footerTop(paper.height() - style.points(edge) - style.small.lineHeight())
{
    const qreal line = style.small.lineHeight() + style.points(ruleDistance);
    const qreal gap = style.points(8);
    const qreal top = m_headerTop + line + gap;
    m_body = QRectF(m_left, top, m_width, m_footerTop - style.points(ruleDistance) - gap - top);
    shortenTexts();
}

/// Done once for all pages, because a title may have a megabyte.
void PageFrame::shortenTexts()
{
    const qreal gap = m_style.points(8);
    const auto shorten = [this](QString& text, qreal room) {
        text = text.isEmpty() ? text : WrappedText::elided(m_style.small, text, room, 1);
        return WrappedText::naturalWidth(m_style.small, text);
    };
    const qreal documentWidth = shorten(m_texts.documentTitle, m_width / 2);
    shorten(m_texts.title, m_width - documentWidth - gap);
    const qreal middleWidth = shorten(m_texts.timestamp, m_width / 2);
    m_unit = m_texts.unitId.isEmpty() ? QString()
                                      : QCoreApplication::translate("ReportPDF", "Unit ID: %1").arg(m_texts.unitId);
    shorten(m_unit, (m_width - middleWidth) / 2 - gap);
}

void PageFrame::drawHeader(PageCanvas& canvas, int page) const
{
    // The first page has the title block.
    if (page == 1)
        return;
    drawLine(canvas, "/Type/Pagination/Subtype/Header", m_headerTop, m_texts.title, {}, m_texts.documentTitle);
    const qreal rule = m_headerTop + m_style.small.lineHeight() + m_style.points(ruleDistance);
    canvas.fill(QRectF(m_left, rule, m_width, m_style.hairline), m_style.rule);
}

void PageFrame::drawFooter(PageCanvas& canvas, int page, int pageCount) const
{
    canvas.fill(QRectF(m_left, m_footerTop - m_style.points(ruleDistance), m_width, m_style.hairline), m_style.rule);
    drawLine(canvas, "/Type/Pagination/Subtype/Footer", m_footerTop, m_unit, m_texts.timestamp,
            QCoreApplication::translate("ReportPDF", "Page %1 of %2").arg(page).arg(pageCount));
}

void PageFrame::drawLine(PageCanvas& canvas, const char* kind, qreal top, const QString& beginning,
        const QString& middle, const QString& ending) const
{
    const auto mark = canvas.structure().artifact(pdf::PageContent::Text, kind);
    const auto draw = [&](const QString& text, Qt::Alignment alignment) {
        canvas.drawText(m_style.small, text, {m_left, top}, m_width, alignment, m_style.mutedInk, 0, 1);
    };
    draw(beginning, m_style.beginning());
    draw(middle, Qt::AlignHCenter);
    draw(ending, m_style.ending());
}

} // namespace uiutils
