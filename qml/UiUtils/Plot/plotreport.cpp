#include "plotreport.h"

#include "curvetrace.h"
#include "writers/plots/curvepoints_p.h"

#include <utility>

namespace uiutils {

namespace {

// Twice those of a plot on paper; a document holds them as text.
constexpr int columns = 1200;
// Of all curves together, for files of data: 6 MB of text, where documents have at most 16.
constexpr int mostPoints = 200 * 1000;

/// Builds the plot of one view.
class ReportPlotBuilder
{
public:
    ReportPlotBuilder(const PlotContent& content, const PlotView& view)
        : m_content(content)
        , m_view(view)
    {
    }

    PlotData build()
    {
        m_data.xLabel = shownPlotText(m_content.xLabel);
        m_data.xKind = m_content.xKind;
        m_data.xUnit = isOfTime() ? QStringLiteral("s") : shownPlotText(m_content.xUnit);
        m_data.xOwnUnit = m_data.xUnit;
        m_data.xWindow = m_view.x().values();
        for (const PlotSide side : {LeftSide, RightSide}) {
            m_data.axes[side].kind = m_content.yKinds[side];
            m_data.axes[side].window = m_view.y(side).values();
        }
        int count = 0;
        for (const PlotCurveItem* curve : m_content.visibleCurves())
            count += curve->count();
        for (const PlotCurveItem* curve : m_content.visibleCurves())
            addCurve(*curve, count <= mostPoints);
        for (const PlotCurveItem* curve : m_content.visibleCurves())
            addBounds(*curve);
        for (const PlotMarkerItem* marker : m_content.markers) {
            if (marker->isVisible() && isInSight(m_view.x(), marker->x()))
                m_data.marks.append({shownPlotText(marker->label()), marker->x()});
        }
        return m_data;
    }

private:
    bool isOfTime() const { return m_content.xKind == AxisScale::Duration || m_content.xKind == AxisScale::Date; }

    static bool isInSight(const AxisView& view, double value)
    {
        const double position = view.position(value);
        return position >= 0 && position <= 1;
    }

    /// The lines and dots that `isWanted(status)` chooses, in values, with interruptions.
    template<typename Filter>
    QVector<QPointF> pointsOf(const CurveTrace& trace, PlotSide side, const Filter& isWanted) const
    {
        QVector<QPointF> points;
        QPointF last(-1, -1);
        for (const auto& parts : {trace.lines, trace.dots}) {
            for (const TracePart& part : parts) {
                if (!isWanted(part.status))
                    continue;
                const bool goesOn = part.points.constFirst() == last;
                if (!goesOn && !points.isEmpty())
                    points += CurvePoints::interruption();
                for (int i = goesOn ? 1 : 0; i < part.points.size(); ++i)
                    points += valueAt(part.points.at(i), side);
                last = part.points.constLast();
            }
        }
        return points;
    }

    QPointF valueAt(const QPointF& position, PlotSide side) const
    {
        return {m_view.x().value(position.x()), m_view.y(side).value(position.y())};
    }

    PlotCurve curveOf(const CurveTrace& trace, PlotSide side, const QString& label, const QString& unit) const
    {
        PlotCurve curve;
        curve.label = shownPlotText(label);
        curve.unit = shownPlotText(unit);
        curve.side = side;
        curve.points = pointsOf(trace, side, [](Status::Code) { return true; });
        curve.size = curve.points.size();
        for (const QPointF& point : qAsConst(curve.points)) {
            curve.extent.x.include(point.x());
            curve.extent.y.include(point.y());
        }
        return curve;
    }

    void addCurve(const PlotCurveItem& item, bool hasAll)
    {
        const PlotSide side = sideOf(&item);
        const CurveTrace trace = curveTrace(item.source(), m_view.x(), m_view.y(side), columns);
        PlotCurve curve = curveOf(trace, side, item.name(), item.unit());
        curve.size = item.count();
        for (int i = 0; hasAll && i < item.count(); ++i)
            curve.all += item.store().at(i);
        for (const Status::Code status : {Status::Marginal, Status::Fail}) {
            const QVector<QPointF> points = pointsOf(trace, side, [&](Status::Code own) { return own == status; });
            if (!points.isEmpty())
                curve.excesses.append({status == Status::Fail, points});
        }
        addUnit(m_data.axes[side], curve.unit);
        m_data.curves += curve;
    }

    void addBounds(const PlotCurveItem& item)
    {
        const PlotSide side = sideOf(&item);
        for (const CurveBound& bound : item.bounds()) {
            if (bound.isLevel())
                addLevel(item, bound);
            else
                addMask(item, bound, side);
        }
    }

    void addLevel(const PlotCurveItem& item, const CurveBound& bound)
    {
        const PlotSide side = sideOf(&item);
        const double value = bound.points.constFirst().y();
        const PlotLimit::Kind kind = bound.side == CurveBound::Upper ? PlotLimit::Upper : PlotLimit::Lower;
        if (isInSight(m_view.y(side), value))
            m_data.limits.append({kind, value, shownPlotText(item.unit()), side, shownPlotText(bound.label)});
    }

    void addMask(const PlotCurveItem& item, const CurveBound& bound, PlotSide side)
    {
        CurveStore store;
        store.setScales(m_view.x().isLogarithmic(), m_view.y(side).isLogarithmic());
        store.replace(bound.points);
        const CurveTrace trace
                = curveTrace({store, CurveJudge(), CurveVerdicts()}, m_view.x(), m_view.y(side), columns);
        PlotCurve curve = curveOf(trace, side, bound.label, item.unit());
        curve.isMask = true;
        if (!curve.points.isEmpty())
            m_data.curves += curve;
    }

    const PlotContent& m_content;
    const PlotView& m_view;
    PlotData m_data;
};

} // namespace

PlotData reportPlot(const PlotContent& content, const PlotView& view)
{
    return ReportPlotBuilder(content, view).build();
}

} // namespace uiutils
