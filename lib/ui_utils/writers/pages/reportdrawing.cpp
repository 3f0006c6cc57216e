#include "writers/pages/reportdrawing.h"

#include "writers/pages/pagecanvas_p.h"
#include "writers/pages/pagestyle_p.h"

#include <QCoreApplication>

namespace uiutils {

/// The layout, in device units.
class ReportDrawingPrivate
{
public:
    QSizeF size;
    qreal spaceAbove = 0;
    QString description;
};

} // namespace uiutils

ReportDrawing::ReportDrawing()
    : d(std::make_unique<uiutils::ReportDrawingPrivate>())
{
}

ReportDrawing::~ReportDrawing() = default;

void ReportDrawing::setDescription(const QString& description)
{
    d->description = description;
}

void ReportDrawing::measure(const uiutils::PageStyle& style, const QSizeF& page)
{
    d->spaceAbove = style.points(8);
    d->size = {page.width(), qBound(0.0, style.points(height(page / style.points(1))), page.height())};
}

ReportItem::Position ReportDrawing::end() const
{
    return d->size.isEmpty() ? Position() : Position {1, 0};
}

ReportItem::Portion ReportDrawing::split(const Position& begin, qreal room, bool isWholePage) const
{
    const bool fits = d->size.height() <= room || isWholePage;
    return fits ? Portion {begin, end(), qMin(d->size.height(), qMax(room, 0.0))} : Portion {begin, begin, 0};
}

void ReportDrawing::draw(uiutils::PageCanvas& canvas, const Portion& portion, const QPointF& topLeft) const
{
    const QSizeF size(d->size.width(), portion.height);
    const qreal point = canvas.style().points(1);
    const QString& own = d->description;
    const QString description = own.isEmpty() ? QCoreApplication::translate("ReportPDF", "Drawing") : own;
    canvas.paint({topLeft, size}, description, [&](QPainter& painter) { paint(painter, size / point); });
}

qreal ReportDrawing::spaceAbove() const
{
    return d->spaceAbove;
}
