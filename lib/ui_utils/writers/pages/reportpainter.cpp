#include "writers/pages/reportpainter.h"

#include "writers/pages/paintercanvas_p.h"
#include "writers/pages/reportpdf_p.h"

#include <QGuiApplication>
#include <QPainter>

#include <optional>

namespace uiutils {

/// Without fonts there is no layout.
class ReportPainterPrivate
{
public:
    std::optional<ReportLayout> layout;
};

namespace {

/// On less paper there is no room between the margins.
constexpr qreal leastSide = 200;

QSizeF usablePaper(const QSizeF& paper, QPageLayout::Orientation orientation)
{
    return paper.isEmpty() ? letterPaper(orientation) : paper.expandedTo({leastSide, leastSide});
}

} // namespace

ReportPainter::ReportPainter(const ReportPDF& pages, const QSizeF& paper)
    : d(std::make_unique<ReportPainterPrivate>())
{
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return;
    const PageSettings settings = pages.d->settings();
    d->layout.emplace(settings.surroundings, pages.d->items, usablePaper(paper, settings.orientation));
}

ReportPainter::~ReportPainter() = default;

bool ReportPainter::layOutMore()
{
    return d->layout && d->layout->advance();
}

int ReportPainter::pageCount() const
{
    return d->layout ? d->layout->pageCount() : 0;
}

QSizeF ReportPainter::pageSize(int page) const
{
    return d->layout ? d->layout->pageSize(page) : QSizeF();
}

void ReportPainter::paint(QPainter& painter, int page)
{
    if (!d->layout || page < 0 || page >= pageCount())
        return;
    const qreal unit = 1 / d->layout->style().points(1);
    painter.save();
    painter.scale(unit, unit);
    PainterCanvas canvas(painter, d->layout->style());
    d->layout->draw(canvas, page);
    painter.restore();
}

} // namespace uiutils
