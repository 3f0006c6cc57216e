#include "writers/pages/pageprinter_p.h"

#include "writers/pages/pagecanvas_p.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

namespace uiutils {

namespace {

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
    , m_titleBlock(settings.titleBlock)
    , m_items(items)
{
    m_items.prepend(&m_titleBlock);
}

PagePrinter::~PagePrinter()
{
    for (ReportItem* item : qAsConst(m_items))
        item->release();
}

PagePrinter::Outcome PagePrinter::print(const QString& path)
{
    prepare(path);
    m_style.emplace(&*m_device);
    m_frame.emplace(*m_style, m_device->pageLayout().fullRectPixels(m_device->resolution()).size(), m_frameTexts);
    const Outcome outcome = layOut() ? printPages() : Stopped;
    warnOfUnreadableIcons();
    return outcome;
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

void PagePrinter::prepare(const QString& path)
{
    m_device.emplace(path);
    m_device->setResolution(pageResolution());
    m_device->setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), m_orientation, QMarginsF()));
    m_device->setCreator(QStringLiteral("uiutils"));
    m_device->setTitle(m_frameTexts.title.isEmpty() ? m_frameTexts.documentTitle : m_frameTexts.title);
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

PagePrinter::Outcome PagePrinter::printPages()
{
    QPainter painter;
    if (!painter.begin(&*m_device))
        return Failed;
    PageCanvas canvas(painter, *m_style);
    for (int page = 0; page < m_pageCount; ++page) {
        if (page > 0 && !m_device->newPage())
            return Failed;
        drawPage(canvas, page);
        if (!m_progress(page + 1, m_pageCount))
            return Stopped;
    }
    return painter.end() ? Printed : Failed;
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
