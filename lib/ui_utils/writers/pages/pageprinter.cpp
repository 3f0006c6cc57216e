#include "writers/pages/pageprinter_p.h"

#include "writers/pages/pagecanvas_p.h"

#include <QGuiApplication>
#include <QScreen>

namespace uiutils {

namespace {

constexpr qreal metersOfAnInch = 0.0254;

/// The resolution of the screen, so that texts have the widths that they have there; where there is no screen, what Qt
/// takes then.
int pageResolution()
{
    if (QCoreApplication::testAttribute(Qt::AA_Use96Dpi))
        return 96;
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? qRound(screen->logicalDotsPerInchY()) : 100;
}

} // namespace

PagePrinter::PagePrinter(const PageSettings& settings, const QList<ReportItem*>& items, const Progress& progress)
    : m_frameTexts(settings.frame)
    , m_orientation(settings.orientation)
    , m_progress(progress)
    , m_document(settings.document)
    , m_device(1, 1, QImage::Format_ARGB32_Premultiplied)
    , m_titleBlock(settings.titleBlock)
    , m_items(items)
{
    m_items.prepend(&m_titleBlock);
    const int dotsOfAMeter = qRound(pageResolution() / metersOfAnInch);
    m_device.setDotsPerMeterX(dotsOfAMeter);
    m_device.setDotsPerMeterY(dotsOfAMeter);
}

PagePrinter::~PagePrinter()
{
    for (ReportItem* item : qAsConst(m_items))
        item->release();
}

PagePrinter::Outcome PagePrinter::print(QIODevice* device, QString* error)
{
    const QSizeF paper = QPageLayout(QPageSize(QPageSize::Letter), m_orientation, QMarginsF()).fullRect(QPageLayout::Point).size();
    m_style.emplace(&m_device);
    m_frame.emplace(*m_style, paper * m_style->points(1), m_frameTexts);
    Outcome outcome = Stopped;
    if (layOut()) {
        m_document.pageSize = paper;
        m_document.unitsOfAPoint = m_style->points(1);
        pdf::DocumentWriter writer(device, m_document);
        outcome = printPages(writer, error);
    }
    warnOfUnreadableIcons();
    return outcome;
}

void PagePrinter::warnOfMissing(const QString& characters)
{
    if (!characters.isEmpty())
        qWarning("No installed font has these characters of a report, which are printed as empty frames: %s",
                qUtf8Printable(characters));
}

/// One line for all of them: where one is missing, mostly all are.
void PagePrinter::warnOfUnreadableIcons() const
{
    const QStringList& files = m_style->unreadableIcons();
    if (!files.isEmpty())
        qWarning("Built-in status icons are printed in place of files that are missing or are not images of at most "
                 "1 MiB: %s",
                qUtf8Printable(files.join(QStringLiteral(", "))));
}

bool PagePrinter::layOut()
{
    const QSizeF body = m_frame->body().size();
    for (ReportItem* item : qAsConst(m_items)) {
        item->measure(*m_style, body);
        if (!m_progress(0, 0))
            return false;
    }
    m_placed = flowOntoPages(m_items, body.height(), &m_pageCount);
    return m_progress(0, m_pageCount);
}

PagePrinter::Outcome PagePrinter::printPages(pdf::DocumentWriter& writer, QString* error)
{
    PageCanvas canvas(writer, *m_style);
    for (int page = 0; page < m_pageCount && !writer.hasFailed(); ++page) {
        writer.beginPage();
        drawPage(canvas, page);
        writer.endPage();
        if (!m_progress(page + 1, m_pageCount))
            return Stopped;
    }
    warnOfMissing(canvas.missing());
    return writer.finish(m_outline, error) ? Printed : Failed;
}

void PagePrinter::drawPage(PageCanvas& canvas, int page)
{
    const QPointF origin = m_frame->body().topLeft();
    m_frame->drawHeader(canvas, page + 1);
    for (; m_nextPortion < m_placed.size() && m_placed.at(m_nextPortion).page == page; ++m_nextPortion) {
        const PlacedPortion& placed = m_placed.at(m_nextPortion);
        m_items.at(placed.item)->draw(canvas, placed.portion, origin + QPointF(0, placed.top));
        if (placed.portion.begin == ReportItem::Position())
            addToOutline(placed);
    }
    m_frame->drawFooter(canvas, page + 1, m_pageCount);
    canvas.flush();
}

/// A heading is nested in the one of the higher level before it, and a table in the last heading.
void PagePrinter::addToOutline(const PlacedPortion& placed)
{
    const ReportItem& item = *m_items.at(placed.item);
    const int heading = item.headingLevel();
    if (heading > 0)
        m_headingLevel = heading;
    const QString title = item.outlineTitle();
    if (title.isEmpty())
        return;
    const int level = heading > 0 ? heading - 1 : m_headingLevel;
    m_outline.append({title, level, placed.page, (m_frame->body().top() + placed.top) / m_style->points(1)});
}

} // namespace uiutils
