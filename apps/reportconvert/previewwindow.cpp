#include "previewwindow.h"

#include "texts.h"
#include "writers/pages/reportpainter.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace uiutils::convert {

namespace {

// In points.
constexpr qreal gap = 12;
// In pixels.
constexpr QSize firstSize(900, 1000);
constexpr qreal step = 1.25;
constexpr qreal leastZoom = 0.2;
constexpr qreal mostZoom = 8;
/// Of the window's height: what a line and a page scroll by.
constexpr qreal lineShare = 0.08;
constexpr qreal pageShare = 0.9;
/// Of the wheel, in the units of its events.
constexpr qreal unitsOfAStep = 120;

} // namespace

PreviewWindow::PreviewWindow(ReportPainter& pages)
    : m_pages(pages)
{
    qreal top = gap;
    for (int page = 0; page < pages.pageCount(); ++page) {
        m_tops += top;
        top += pages.pageSize(page).height() + gap;
        m_widest = qMax(m_widest, pages.pageSize(page).width());
    }
    m_tops += top;
    resize(firstSize);
    tellPage();
}

PreviewWindow::~PreviewWindow() = default;

qreal PreviewWindow::scale() const
{
    return m_zoom * qMax(1, width()) / (m_widest + 2 * gap);
}

int PreviewWindow::pageAt(qreal y) const
{
    const auto after = std::upper_bound(m_tops.cbegin(), m_tops.cend(), y);
    return qBound(0, int(after - m_tops.cbegin()) - 1, m_pages.pageCount() - 1);
}

void PreviewWindow::tellPage()
{
    const int page = pageAt(m_corner.y() + height() / scale() / 2);
    setTitle(Texts::tr("Page %1 of %2").arg(page + 1).arg(m_pages.pageCount()));
}

void PreviewWindow::scrollTo(const QPointF& corner)
{
    const QSizeF inSight = QSizeF(size()) / scale();
    const qreal right = qMax(0.0, m_widest + 2 * gap - inSight.width());
    const qreal bottom = qMax(0.0, m_tops.constLast() - inSight.height());
    m_corner = {qBound(0.0, corner.x(), right), qBound(0.0, corner.y(), bottom)};
    tellPage();
    update();
}

/// What is in the middle stays there.
void PreviewWindow::zoomTo(qreal zoom)
{
    const QPointF middle = m_corner + QPointF(width(), height()) / scale() / 2;
    m_zoom = qBound(leastZoom, zoom, mostZoom);
    scrollTo(middle - QPointF(width(), height()) / scale() / 2);
}

void PreviewWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(QRect({}, size()), Qt::gray);
    painter.scale(scale(), scale());
    painter.translate(-m_corner);
    const qreal spare = qMax(0.0, width() / scale() - m_widest - 2 * gap);
    const qreal bottom = m_corner.y() + height() / scale();
    for (int page = pageAt(m_corner.y()); page < m_pages.pageCount() && m_tops.at(page) < bottom; ++page) {
        const QSizeF size = m_pages.pageSize(page);
        painter.save();
        painter.translate(gap + (spare + m_widest - size.width()) / 2, m_tops.at(page));
        painter.fillRect(QRectF({}, size), Qt::white);
        m_pages.paint(painter, page);
        painter.restore();
    }
}

void PreviewWindow::resizeEvent(QResizeEvent*)
{
    scrollTo(m_corner);
}

void PreviewWindow::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
    case Qt::Key_Q:
        close();
        return;
    case Qt::Key_Up:
        return scrollBy(-lineShare);
    case Qt::Key_Down:
        return scrollBy(lineShare);
    case Qt::Key_PageUp:
        return scrollBy(-pageShare);
    case Qt::Key_PageDown:
    case Qt::Key_Space:
        return scrollBy(pageShare);
    case Qt::Key_Home:
        return scrollTo({m_corner.x(), 0});
    case Qt::Key_End:
        return scrollTo({m_corner.x(), m_tops.constLast()});
    case Qt::Key_Plus:
        return zoomTo(m_zoom * step);
    case Qt::Key_Minus:
        return zoomTo(m_zoom / step);
    case Qt::Key_0:
        return zoomTo(1);
    default:
        QRasterWindow::keyPressEvent(event);
    }
}

void PreviewWindow::wheelEvent(QWheelEvent* event)
{
    const QPointF turned = QPointF(event->angleDelta()) / unitsOfAStep;
    if (event->modifiers() & Qt::ControlModifier)
        zoomTo(turned.y() > 0 ? m_zoom * step : m_zoom / step);
    else
        scrollTo(m_corner - turned * lineShare * height() / scale());
}

void PreviewWindow::mousePressEvent(QMouseEvent* event)
{
    m_dragged = event->localPos();
}

void PreviewWindow::mouseMoveEvent(QMouseEvent* event)
{
    scrollTo(m_corner - (event->localPos() - m_dragged) / scale());
    m_dragged = event->localPos();
}

} // namespace uiutils::convert
