#include "writers/plots/plotlayout_p.h"

#include "writers/plots/plottext_p.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace uiutils {

namespace {

constexpr int mostTitleLines = 3;
// A title that says more is cut before it is measured.
constexpr int longestTitle = 1000;
// With more curves the limits are named first, because a legend has a maximum.
constexpr int curvesBeforeLimits = 100;

// Distinguishable with any colour vision, none paler than grey letters.
const QRgb curveColors[] = {0x00689b, 0xd55e00, 0x007a5a, 0xaa4499, 0x8a6d00, 0x3f8fd2, 0x7a2e12, 0x444444};
// In widths of the line: dashes and gaps.
const QVector<qreal> curveDashes[]
        = {{}, {6, 2.5}, {1.5, 2}, {8, 2, 1.5, 2}, {3, 2}, {12, 3}, {8, 2, 1.5, 2, 1.5, 2}, {12, 2, 3, 2}};
const QRgb limitColor = 0xc62828;
const QRgb marginalColor = 0x9a5b00;
const QRgb markColor = 0x5e35b1;
// A place on an axis is said as exactly as a screen shows it.
constexpr int distinguishable = 1000;

double unitOf(const QSize& size)
{
    return qBound(9.0, std::min(size.width(), size.height()) / 32.0, 30.0);
}

QFont fontOf(double unit)
{
    QFont font(QStringLiteral("sans-serif"));
    font.setPixelSize(int(unit));
    // The same distances at every resolution.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// In the notation of an axis.
QString levelText(double value)
{
    const bool isPlain = std::abs(value) < 1e7;
    return QLocale().toString(value, 'g', isPlain ? 7 : 6);
}

/// A window is shown as it is.
AxisScale scaleOf(const PlotData& data, PlotSide side, int ticks)
{
    const PlotAxis& axis = data.axes[side];
    return {data.yExtent(side), axis.kind, axis.window.isEmpty() ? AxisScale::AtTicks : AxisScale::AtData, ticks};
}

QString titled(const QString& label, const QString& unit)
{
    if (unit.isEmpty())
        return label;
    // Beside words from right to left, "°C" would become "C°".
    const QString mark = label.isRightToLeft() ? QString(QChar(0x200e)) : QString();
    return label.isEmpty() ? unit : QStringLiteral("%1 (%2)").arg(label, mark + unit + mark);
}

} // namespace

QSize plotSize(int width, int height)
{
    constexpr int least = 50;
    constexpr int most = 4000;
    return {width < 1 ? 600 : qBound(least, width, most), height < 1 ? 400 : qBound(least, height, most)};
}

QColor plotCurveColor(int index)
{
    return QColor(curveColors[index % int(std::size(curveColors))]);
}

PlotLayout::PlotLayout(std::shared_ptr<const PlotData> data, const QString& title, const QSize& size)
    : m_data(std::move(data))
    , m_title(title)
    , m_width(size.width())
    , m_unit(unitOf(size))
    , m_font(fontOf(m_unit))
    , m_line(QFontMetricsF(m_font).height())
    , m_x(m_data->xExtent(), m_data->xKind, AxisScale::AtData, int(m_width / (m_unit * 7)))
    , m_left(scaleOf(*m_data, LeftSide, int(size.height() / (m_unit * 3))))
    , m_right(scaleOf(*m_data, RightSide, int(size.height() / (m_unit * 3))))
{
    layOut(size);
}

QFont PlotLayout::titleFont() const
{
    QFont font = m_font;
    font.setBold(true);
    return font;
}

double PlotLayout::labelWidth(const AxisScale& scale) const
{
    const QLocale locale;
    const QFontMetricsF metrics = this->metrics();
    double width = 0;
    for (const double tick : scale.ticks())
        width = std::max(width, metrics.horizontalAdvance(scale.label(tick, locale)));
    return width;
}

void PlotLayout::layOut(const QSize& size)
{
    const QString title = m_title.left(longestTitle).simplified();
    if (!title.isEmpty())
        m_titleLines = wrappedLines(title, QFontMetricsF(titleFont()), m_width, mostTitleLines);
    if (needsLegend())
        m_legend = PlotLegend(legendEntries(), m_data->omitted, metrics(), m_unit, m_width);

    const double endLabel
            = m_x.ticks().isEmpty() ? 0 : metrics().horizontalAdvance(m_x.label(m_x.ticks().constLast(), QLocale()));
    const double left = labelWidth(m_left) + 1.2 * m_unit;
    double right = std::max(0.6 * m_unit, endLabel / 2 + 0.3 * m_unit);
    if (m_data->has(RightSide))
        right = std::max(right, labelWidth(m_right) + 1.2 * m_unit);

    m_axisTitleTop = 0.2 * m_unit + (m_titleLines.isEmpty() ? 0 : m_titleLines.size() * m_line + 0.4 * m_unit);
    const double top = m_axisTitleTop + m_line + 0.6 * m_unit;
    const double bottom = 2 * m_line + 0.9 * m_unit;
    const double legendGap = m_legend.lineCount() > 0 ? 0.3 * m_unit : 0;
    const double bare = size.height() - (m_line + 0.8 * m_unit) - bottom;
    const double legendHeight = m_legend.lineCount() * m_line + legendGap;
    const double around = top + bottom + legendHeight;
    const double least = std::min(bare, size.height() * 0.55);
    constexpr double rounding = 0.01;
    m_height = size.height() - around >= least - rounding ? size.height() : std::ceil(around + least - rounding);
    // Whole pixels, so that a curve is thinned out in the same columns in which it is drawn.
    m_frame = QRectF(left, top, m_width - left - right, m_height - around).toRect();
}

QSizeF PlotLayout::sizeWith(LineRange legend) const
{
    return {m_width, m_height - (m_legend.lineCount() - legend.count()) * m_line};
}

QPen PlotLayout::curvePen(int index) const
{
    const int count = int(std::size(curveColors));
    const QVector<qreal>& dashes = curveDashes[(index + index / count) % count];
    QPen pen(plotCurveColor(index), std::max(1.2, m_unit / 8), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (!dashes.isEmpty()) {
        // Round ends would fill the gaps.
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern(dashes);
    }
    return pen;
}

QPen PlotLayout::limitPen() const
{
    QPen pen(QColor(limitColor), std::max(1.0, m_unit / 10), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    pen.setDashPattern({4, 4});
    return pen;
}

QPen PlotLayout::excessPen(bool isFailure) const
{
    return {QColor(isFailure ? limitColor : marginalColor), std::max(2.4, m_unit / 4), Qt::SolidLine, Qt::FlatCap,
            Qt::BevelJoin};
}

QPen PlotLayout::markPen() const
{
    QPen pen(QColor(markColor), std::max(1.0, m_unit / 10), Qt::SolidLine, Qt::FlatCap);
    pen.setDashPattern({8, 2, 2, 2});
    return pen;
}

/// The name of the only curve of an axis, with its unit; else the units.
QString PlotLayout::namedAxisTitle(PlotSide side) const
{
    const PlotCurve* only = nullptr;
    int count = 0;
    for (const PlotCurve& curve : m_data->curves) {
        if (curve.side == side) {
            only = &curve;
            ++count;
        }
    }
    if (count == 1)
        return titled(only->label, only->unit);
    return m_data->axes[side].units.join(QStringLiteral(", "));
}

bool PlotLayout::fits(PlotSide side) const
{
    const double room = m_data->has(RightSide) ? m_width / 2 : m_width;
    return metrics().horizontalAdvance(namedAxisTitle(side)) <= room - m_unit;
}

QString PlotLayout::axisTitle(PlotSide side) const
{
    const QString title = fits(side) ? namedAxisTitle(side) : m_data->axes[side].units.join(QStringLiteral(", "));
    const double room = (m_data->has(RightSide) ? m_width / 2 : m_width) - m_unit;
    return metrics().elidedText(title, Qt::ElideRight, room);
}

QString PlotLayout::xTitle() const
{
    const QString note = m_x.note(QLocale());
    const QString title = titled(m_data->xLabel, m_x.isOfTime() ? QString() : m_data->xUnit);
    const QString both = note.isEmpty() ? title : titled(title, note);
    return metrics().elidedText(both, Qt::ElideRight, m_frame.width());
}

/// One curve is named beside its axis, if the name fits there.
bool PlotLayout::needsLegend() const
{
    return m_data->curves.size() > 1 || !m_data->limits.isEmpty() || !m_data->marks.isEmpty() || !fits(LeftSide)
            || !excessEntries().isEmpty();
}

QVector<LegendEntry> PlotLayout::curveEntries() const
{
    QVector<LegendEntry> entries;
    const bool isShared = m_data->axes[LeftSide].units.size() < 2 && !m_data->has(RightSide)
            && std::all_of(m_data->curves.cbegin(), m_data->curves.cend(),
                    [&](const PlotCurve& curve) { return curve.unit == m_data->curves.constFirst().unit; });
    if (m_data->curves.size() == 1 && fits(LeftSide) && m_data->limits.isEmpty())
        return entries;
    for (int i = 0; i < m_data->curves.size(); ++i) {
        const PlotCurve& curve = m_data->curves.at(i);
        entries.append(
                {isShared ? curve.label : titled(curve.label, curve.unit), curve.isMask ? limitPen() : curvePen(i)});
    }
    return entries;
}

/// Each kind once.
QVector<LegendEntry> PlotLayout::excessEntries() const
{
    QVector<LegendEntry> entries;
    for (const bool isFailure : {false, true}) {
        const QString text = isFailure ? QCoreApplication::translate("PlotImage", "beyond a limit")
                                       : QCoreApplication::translate("PlotImage", "beyond a warning level");
        for (const PlotCurve& curve : m_data->curves) {
            const bool has = std::any_of(curve.excesses.cbegin(), curve.excesses.cend(),
                    [&](const PlotExcess& excess) { return excess.isFailure == isFailure; });
            if (has) {
                entries.append({text, excessPen(isFailure)});
                break;
            }
        }
    }
    return entries;
}

QVector<LegendEntry> PlotLayout::markEntries() const
{
    QVector<LegendEntry> entries;
    const QLocale locale;
    const AxisScale scale(m_data->xExtent(), m_data->xKind, AxisScale::AtData, distinguishable);
    for (const PlotMark& mark : m_data->marks) {
        const QString number = scale.label(mark.x, locale);
        const QString place = scale.isOfTime() || m_data->xUnit.isEmpty()
                ? number
                : QStringLiteral("%1 %2").arg(number, m_data->xUnit);
        entries.append({titled(mark.label, place), markPen()});
    }
    return entries;
}

QVector<LegendEntry> PlotLayout::legendEntries() const
{
    QVector<LegendEntry> limits;
    for (const PlotLimit& limit : m_data->limits) {
        const QString text = limit.kind == PlotLimit::Lower ? QCoreApplication::translate("PlotImage", "at least %1 %2")
                                                            : QCoreApplication::translate("PlotImage", "at most %1 %2");
        const QString level = text.arg(levelText(limit.value), limit.unit).trimmed();
        limits.append({titled(limit.label, level), limitPen()});
    }
    limits += excessEntries() + markEntries();
    const QVector<LegendEntry> curves = curveEntries();
    return curves.size() > curvesBeforeLimits ? limits + curves : curves + limits;
}

} // namespace uiutils
