#include "liveplot.h"

#include "languages/languages.h"
#include "plotreadout.h"

#include <QtMath>

#include <algorithm>

namespace uiutils {

namespace {

// Programs that read aloud are not to be kept busy.
constexpr int announcementMs = 1000;

/// Returns whether that changed anything.
template<typename Value> bool assign(Value& held, const Value& value)
{
    if (held == value)
        return false;
    held = value;
    return true;
}

template<typename Item> QVariantList variantsOf(const QVector<Item*>& items)
{
    QVariantList list;
    for (Item* item : items)
        list += QVariant::fromValue<QObject*>(item);
    return list;
}

/// Whether an object is at that address. What is being deleted there is no curve or marker any more.
auto isAt(const QObject* address)
{
    return [address](const QObject* object) { return object == address; };
}

} // namespace

LivePlot::LivePlot(QQuickItem* parent)
    : QQuickItem(parent)
{
    m_content.colors = &m_colors;
    setFlag(ItemHasContents);
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(announcementMs);
    connect(&m_quiet, &QTimer::timeout, this, &LivePlot::announceText);
    connect(&m_colors, &PlotColors::changed, this, &LivePlot::redrawCurves);
    connect(Languages::instance(), &Languages::currentChanged, this, &LivePlot::speakAnew);
    // What is read says these.
    connect(this, &LivePlot::labelsChanged, this, &LivePlot::readoutsChanged);
    connect(this, &LivePlot::markersChanged, this, &LivePlot::readoutsChanged);
    takeGestures();
}

LivePlot::~LivePlot()
{
    for (PlotCurveItem* curve : qAsConst(m_content.curves))
        disconnect(curve, nullptr, this, nullptr);
    for (PlotMarkerItem* marker : qAsConst(m_content.markers))
        disconnect(marker, nullptr, this, nullptr);
    for (QObject* object : qAsConst(m_contents))
        disconnect(object, nullptr, this, nullptr);
}

// --- Contents ---

QQmlListProperty<QObject> LivePlot::contents()
{
    return {this, nullptr, &LivePlot::addContent, &LivePlot::contentCount, &LivePlot::contentAt, nullptr};
}

void LivePlot::addContent(QQmlListProperty<QObject>* list, QObject* object)
{
    auto* plot = static_cast<LivePlot*>(list->object);
    if (!object)
        return;
    plot->m_contents += object;
    connect(object, &QObject::destroyed, plot, &LivePlot::dropContent);
    if (auto* curve = qobject_cast<PlotCurveItem*>(object))
        plot->addCurve(curve);
    else if (auto* marker = qobject_cast<PlotMarkerItem*>(object))
        plot->addMarker(marker);
    else if (auto* item = qobject_cast<QQuickItem*>(object))
        item->setParentItem(plot);
    else if (!object->parent())
        object->setParent(plot);
}

int LivePlot::contentCount(QQmlListProperty<QObject>* list)
{
    return static_cast<LivePlot*>(list->object)->m_contents.size();
}

QObject* LivePlot::contentAt(QQmlListProperty<QObject>* list, int index)
{
    return static_cast<LivePlot*>(list->object)->m_contents.value(index);
}

void LivePlot::dropContent(QObject* object)
{
    m_contents.removeAll(object);
}

QVariantList LivePlot::curves() const
{
    return variantsOf(m_content.curves);
}

QVariantList LivePlot::markers() const
{
    return variantsOf(m_content.markers);
}

void LivePlot::addCurve(PlotCurveItem* curve)
{
    if (!curve || m_content.curves.contains(curve))
        return;
    m_content.curves += curve;
    connect(curve, &PlotCurveItem::pointsChanged, this, &LivePlot::redrawCurves);
    connect(curve, &PlotCurveItem::changed, this, &LivePlot::redrawCurves);
    connect(curve, &PlotCurveItem::verdictChanged, this, &LivePlot::judge);
    connect(curve, &PlotCurveItem::rightAxisChanged, this, &LivePlot::scaleCurves);
    connect(curve, &QObject::destroyed, this, &LivePlot::dropCurve);
    scaleCurves();
    judge();
    redrawCurves();
    Q_EMIT curvesChanged();
}

void LivePlot::removeCurve(PlotCurveItem* curve)
{
    if (!curve || !m_content.curves.contains(curve))
        return;
    stopListeningTo(curve);
    dropCurve(curve);
}

/// What was declared inside is known until it is deleted.
void LivePlot::stopListeningTo(QObject* object)
{
    disconnect(object, nullptr, this, nullptr);
    if (m_contents.contains(object))
        connect(object, &QObject::destroyed, this, &LivePlot::dropContent);
}

/// Of a curve that is being deleted nothing but the address is left.
void LivePlot::dropCurve(QObject* curve)
{
    QVector<PlotCurveItem*>& curves = m_content.curves;
    curves.erase(std::remove_if(curves.begin(), curves.end(), isAt(curve)), curves.end());
    judge();
    redrawCurves();
    Q_EMIT curvesChanged();
}

void LivePlot::addMarker(PlotMarkerItem* marker)
{
    if (!marker || m_content.markers.contains(marker))
        return;
    m_content.markers += marker;
    connect(marker, &PlotMarkerItem::changed, this, &LivePlot::redraw);
    connect(marker, &PlotMarkerItem::changed, this, &LivePlot::readoutsChanged);
    connect(marker, &QObject::destroyed, this, &LivePlot::dropMarker);
    redraw();
    Q_EMIT markersChanged();
}

void LivePlot::removeMarker(PlotMarkerItem* marker)
{
    if (!marker || !m_content.markers.contains(marker))
        return;
    stopListeningTo(marker);
    dropMarker(marker);
}

void LivePlot::dropMarker(QObject* marker)
{
    QVector<PlotMarkerItem*>& markers = m_content.markers;
    markers.erase(std::remove_if(markers.begin(), markers.end(), isAt(marker)), markers.end());
    redraw();
    Q_EMIT markersChanged();
}

/// Tells the curves which axes are logarithmic.
void LivePlot::scaleCurves()
{
    const bool isLogarithmicX = m_content.xKind == AxisScale::Logarithmic;
    for (PlotCurveItem* curve : qAsConst(m_content.curves))
        curve->setScales(isLogarithmicX, m_content.yKinds[sideOf(curve)] == AxisScale::Logarithmic);
}

void LivePlot::judge()
{
    int worst = Status::None;
    for (const PlotCurveItem* curve : qAsConst(m_content.curves))
        worst = std::max(worst, curve->verdict());
    if (assign(m_verdict, worst))
        Q_EMIT verdictChanged();
}

/// The texts that getters and pictures have are of another language now.
void LivePlot::speakAnew()
{
    redrawCurves();
    Q_EMIT readoutsChanged();
    Q_EMIT accessibleTextChanged();
    Q_EMIT styleChanged();
}

// --- What a page sets ---

void LivePlot::setXLabel(const QString& label)
{
    if (!assign(m_content.xLabel, label))
        return;
    redraw();
    Q_EMIT labelsChanged();
}

void LivePlot::setXUnit(const QString& unit)
{
    if (!assign(m_content.xUnit, unit))
        return;
    redraw();
    Q_EMIT labelsChanged();
}

void LivePlot::setXScale(Scale scale)
{
    if (!assign(m_content.xKind, AxisScale::Kind(scale)))
        return;
    scaleCurves();
    redrawCurves();
    Q_EMIT scalesChanged();
}

void LivePlot::setYScale(Scale scale)
{
    if (!assign(m_content.yKinds[LeftSide], scale == Logarithmic ? AxisScale::Logarithmic : AxisScale::Linear))
        return;
    scaleCurves();
    redrawCurves();
    Q_EMIT scalesChanged();
}

void LivePlot::setRightScale(Scale scale)
{
    if (!assign(m_content.yKinds[RightSide], scale == Logarithmic ? AxisScale::Logarithmic : AxisScale::Linear))
        return;
    scaleCurves();
    redrawCurves();
    Q_EMIT scalesChanged();
}

void LivePlot::setFollow(double width)
{
    if (width == m_view.follow())
        return;
    m_view.setFollow(width);
    redrawCurves();
    Q_EMIT followChanged();
}

void LivePlot::setInteractive(bool isInteractive)
{
    if (!assign(m_isInteractive, isInteractive))
        return;
    setAcceptedMouseButtons(isInteractive ? Qt::LeftButton : Qt::NoButton);
    setAcceptTouchEvents(isInteractive);
    Q_EMIT interactiveChanged();
}

void LivePlot::changeStyle()
{
    redrawCurves();
    Q_EMIT styleChanged();
}

void LivePlot::setReadoutVisible(bool isVisible)
{
    if (assign(m_content.hasReadout, isVisible))
        changeStyle();
}

void LivePlot::setTextSize(double pixels)
{
    if (assign(m_content.textSize, pixels))
        changeStyle();
}

void LivePlot::setFontFamily(const QString& family)
{
    if (assign(m_content.fontFamily, family))
        changeStyle();
}

void LivePlot::setLineWidth(double pixels)
{
    if (assign(m_content.lineWidth, qBound(0.5, pixels, 50.0)))
        changeStyle();
}

void LivePlot::setLegend(bool hasLegend)
{
    if (assign(m_content.hasLegend, hasLegend))
        changeStyle();
}

void LivePlot::setEmptyText(const QString& text)
{
    if (assign(m_content.ownEmptyText, text))
        changeStyle();
}

// --- Cursor and words ---

void LivePlot::setCursorX(double x)
{
    const double place = std::isfinite(x) ? x : qQNaN();
    if (place == m_content.cursorX || (std::isnan(place) && !isCursorVisible()))
        return;
    m_content.cursorX = place;
    redraw();
    Q_EMIT cursorXChanged();
    Q_EMIT readoutsChanged();
}

QString LivePlot::cursorText() const
{
    return plotReadoutText(m_content, view(), m_content.cursorX);
}

QVariantList LivePlot::readouts() const
{
    QVariantList list;
    if (!isCursorVisible())
        return list;
    for (const PlotReadout& readout : plotReadouts(m_content, view(), m_content.cursorX)) {
        list += QVariantMap {{QStringLiteral("name"), readout.curve->name()}, {QStringLiteral("text"), readout.text},
                {QStringLiteral("y"), readout.y}, {QStringLiteral("color"), m_content.colorOf(readout.curve)},
                {QStringLiteral("verdict"), readout.status}};
    }
    return list;
}

QString LivePlot::accessibleText() const
{
    return plotDescription(m_content, view());
}

void LivePlot::announceText()
{
    if (assign(m_announcedText, accessibleText()))
        Q_EMIT accessibleTextChanged();
}

QString LivePlot::xText(double x) const
{
    return plotXText(m_content, view(), x);
}

QString LivePlot::deltaText() const
{
    QVector<PlotMarkerItem*> visible;
    for (PlotMarkerItem* marker : m_content.markers) {
        if (marker->isVisible())
            visible += marker;
    }
    return deltaBetween(visible.value(0), visible.value(1));
}

QString LivePlot::deltaBetween(PlotMarkerItem* from, PlotMarkerItem* to) const
{
    return from && to ? plotDeltaText(m_content, view(), from->x(), to->x()) : QString();
}

} // namespace uiutils
