#include "liveplot.h"

#include "plotnodes.h"
#include "scenebuilder.h"

#include <QKeyEvent>
#include <QTouchEvent>

#include <algorithm>
#include <cmath>

namespace uiutils {

namespace {

constexpr double zoomOfAStep = 1.25;
constexpr double degreesOfAStep = 120;
// Of a key; with the shift key ten times as far.
constexpr double cursorStep = 1;
constexpr double cursorStride = 10;

} // namespace

// --- What is in sight ---

const PlotView& LivePlot::view() const
{
    if (m_isViewOld) {
        m_view.fit(m_content, PlotFrame::yTicks(m_content, height()));
        m_frame = PlotFrame(m_content, m_view, size());
        m_isViewOld = false;
    }
    return m_view;
}

const PlotFrame& LivePlot::frame() const
{
    view();
    return m_frame;
}

void LivePlot::moveView(const std::function<void(PlotView&)>& move)
{
    view();
    move(m_view);
    redrawCurves();
    announceView();
}

void LivePlot::setWindow(double xMinimum, double xMaximum, double yMinimum, double yMaximum)
{
    moveView([&](PlotView& view) { view.setWindow({xMinimum, xMaximum}, {yMinimum, yMaximum}); });
}

void LivePlot::zoom(double factor, const QPointF& point, int axes)
{
    const QPointF at = frame().positionOf(point);
    moveView([&](PlotView& view) { view.zoom(factor, at.x(), at.y(), axes); });
}

void LivePlot::zoomCentered(double factor, int axes)
{
    zoom(factor, frame().rect().center(), axes);
}

void LivePlot::pan(double dx, double dy)
{
    const QRectF area = frame().rect();
    moveView([&](PlotView& view) { view.pan(dx / area.width(), -dy / area.height()); });
}

void LivePlot::autoscale()
{
    moveView([](PlotView& view) { view.setAutomatic(); });
}

double LivePlot::xAt(double pixel) const
{
    return view().x().value(frame().positionOf({pixel, 0}).x());
}

double LivePlot::yAt(double pixel) const
{
    return view().y(LeftSide).value(frame().positionOf({0, pixel}).y());
}

QPointF LivePlot::positionOf(double x, double y) const
{
    return frame().pointAt({view().x().position(x), view().y(LeftSide).position(y)});
}

void LivePlot::placeCursor(double pixel)
{
    const QRectF area = frame().rect();
    setCursorX(xAt(qBound(area.left(), pixel, area.right())));
}

void LivePlot::moveCursor(double pixels)
{
    const QRectF area = frame().rect();
    const double from = isCursorVisible() ? positionOf(cursorX(), 0).x() : area.center().x();
    placeCursor(from + pixels);
}

void LivePlot::clearCursor()
{
    setCursorX(std::nan(""));
}

// --- Drawing ---

void LivePlot::redraw()
{
    m_isViewOld = true;
    polish();
}

void LivePlot::redrawCurves()
{
    m_areCurvesOld = true;
    redraw();
}

void LivePlot::geometryChanged(const QRectF& now, const QRectF& before)
{
    QQuickItem::geometryChanged(now, before);
    if (now.size() != before.size())
        redrawCurves();
}

void LivePlot::itemChange(ItemChange change, const ItemChangeData& data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange || change == ItemVisibleHasChanged || change == ItemDevicePixelRatioHasChanged)
        redrawCurves();
}

void LivePlot::announceView()
{
    const PlotView& present = view();
    const bool isSame = present == m_announcedView && m_frame.rect() == m_announcedArea;
    m_announcedView = present;
    m_announcedArea = m_frame.rect();
    if (!isSame)
        Q_EMIT viewChanged();
}

/// Here, on the GUI thread, everything is computed that drawing needs.
void LivePlot::updatePolish()
{
    if (!window() || !isVisible() || width() < 1 || height() < 1)
        return;
    announceView();
    const double ratio = window()->effectiveDevicePixelRatio();
    const PlotFrame& frame = this->frame();
    if (m_areCurvesOld || m_scene.frame != frame.rect()) {
        m_scene.strokes = plotStrokes(m_content, m_view, frame, ratio);
        ++m_scene.strokesRevision;
        if (isCursorVisible() || !m_content.markers.isEmpty())
            Q_EMIT readoutsChanged();
    }
    m_areCurvesOld = false;
    m_scene.size = size();
    m_scene.font = frame.font();
    m_scene.frame = frame.rect();
    m_scene.backdrop = plotBackdrop(m_content, m_view, frame);
    m_scene.overlay = plotOverlay(m_content, m_view, frame);
    if (drawsGeometry(window()))
        m_pictures.paintLayers(m_scene, ratio);
    else
        m_pictures.paintWhole(m_scene, ratio);
    if (!m_quiet.isActive())
        m_quiet.start();
    update();
}

QSGNode* LivePlot::updatePaintNode(QSGNode* node, UpdatePaintNodeData*)
{
    const bool isDrawn = drawsGeometry(window());
    if (m_pictures.backdrop().isNull() || (isDrawn && m_pictures.overlay().isNull())) {
        delete node;
        return nullptr;
    }
    if (isDrawn) {
        auto* drawn = node ? static_cast<DrawnPlotNode*>(node) : new DrawnPlotNode;
        drawn->update(window(), m_scene, m_pictures);
        return drawn;
    }
    auto* painted = node ? static_cast<PaintedPlotNode*>(node) : new PaintedPlotNode;
    painted->update(window(), m_pictures);
    return painted;
}

// --- Fingers, mouse, keys ---

void LivePlot::takeGestures()
{
    connect(&m_gestures, &PlotGestures::tapped, this, [this](const QPointF& at) {
        forceActiveFocus(Qt::MouseFocusReason);
        placeCursor(at.x());
        Q_EMIT tapped(xAt(at.x()), yAt(at.y()));
    });
    connect(&m_gestures, &PlotGestures::doubleTapped, this, &LivePlot::autoscale);
    connect(&m_gestures, &PlotGestures::cursorMoved, this, &LivePlot::placeCursor);
    connect(&m_gestures, &PlotGestures::panned, this, [this](const QPointF& by) { pan(by.x(), by.y()); });
    connect(&m_gestures, &PlotGestures::zoomed, this, &LivePlot::zoom);
}

void LivePlot::takeFingers(const QVector<QPointF>& fingers, ulong time)
{
    // As far from the cursor as a finger is wide.
    const double reach = std::max(20.0, 1.5 * m_content.textSize);
    const double cursor = view().x().position(cursorX());
    const bool isSeen = cursor >= 0 && cursor <= 1;
    m_gestures.take(fingers, time, isSeen ? frame().pointAt({cursor, 0}).x() : std::nan(""), reach);
    setKeepTouchGrab(m_gestures.isMoving());
    setKeepMouseGrab(m_gestures.isMoving());
}

void LivePlot::touchEvent(QTouchEvent* event)
{
    if (event->type() == QEvent::TouchCancel) {
        m_gestures.cancel();
        return;
    }
    QVector<QPointF> fingers;
    for (const QTouchEvent::TouchPoint& point : event->touchPoints()) {
        if (point.state() != Qt::TouchPointReleased)
            fingers += point.pos();
    }
    takeFingers(fingers, event->timestamp());
    event->accept();
}

void LivePlot::touchUngrabEvent()
{
    m_gestures.cancel();
}

void LivePlot::takeMouse(QMouseEvent* event, bool isDown)
{
    takeFingers(isDown ? QVector<QPointF> {event->localPos()} : QVector<QPointF>(), event->timestamp());
    event->accept();
}

void LivePlot::mousePressEvent(QMouseEvent* event)
{
    takeMouse(event, true);
}

void LivePlot::mouseMoveEvent(QMouseEvent* event)
{
    takeMouse(event, true);
}

void LivePlot::mouseReleaseEvent(QMouseEvent* event)
{
    takeMouse(event, false);
}

void LivePlot::mouseDoubleClickEvent(QMouseEvent* event)
{
    takeMouse(event, true);
}

void LivePlot::mouseUngrabEvent()
{
    m_gestures.cancel();
}

void LivePlot::wheelEvent(QWheelEvent* event)
{
    if (!m_isInteractive || event->angleDelta().isNull()) {
        event->ignore();
        return;
    }
    // With Alt, some systems turn the wheel's other axis.
    const QPoint delta = event->angleDelta();
    const double steps = (delta.y() != 0 ? delta.y() : delta.x()) / degreesOfAStep;
    const int axes = event->modifiers() & Qt::ControlModifier ? X : event->modifiers() & Qt::ShiftModifier ? Y : Both;
    zoom(std::pow(zoomOfAStep, steps), event->position(), axes);
    event->accept();
}

void LivePlot::keyPressEvent(QKeyEvent* event)
{
    const double step = event->modifiers() & Qt::ShiftModifier ? cursorStride : cursorStep;
    event->setAccepted(m_isInteractive);
    if (!m_isInteractive)
        return;
    switch (event->key()) {
    case Qt::Key_Left:
        return moveCursor(-step);
    case Qt::Key_Right:
        return moveCursor(step);
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoomCentered(zoomOfAStep);
    case Qt::Key_Minus:
        return zoomCentered(1 / zoomOfAStep);
    case Qt::Key_0:
    case Qt::Key_Home:
        return autoscale();
    default:
        break;
    }
    event->setAccepted(event->key() == Qt::Key_Escape && isCursorVisible());
    if (event->isAccepted())
        clearCursor();
}

} // namespace uiutils
