#include "scenebuilder.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace uiutils {

namespace {

/// The middle of a pixel, where a line of one pixel is sharp.
double onPixel(double place)
{
    return std::floor(place) + 0.5;
}

QString titled(const QString& label, const QString& unit)
{
    return unit.isEmpty() ? label : label.isEmpty() ? unit : QStringLiteral("%1 (%2)").arg(label, unit);
}

class BackdropBuilder
{
public:
    BackdropBuilder(const PlotContent& content, const PlotView& view, const PlotFrame& frame)
        : m_content(content)
        , m_view(view)
        , m_frame(frame)
        , m_rect(frame.rect())
        , m_line(frame.line())
        , m_metrics(frame.metrics())
    {
    }

    SceneLayer build()
    {
        addArea();
        addGrid();
        addXLabels();
        addYLabels(LeftSide);
        if (m_content.has(RightSide))
            addYLabels(RightSide);
        if (m_frame.hasTitles())
            addTitles();
        if (m_frame.legendRows() > 0)
            addLegend();
        if (isEmpty())
            addEmptyText();
        return m_layer;
    }

private:
    void addLine(const QPointF& from, const QPointF& to, const QColor& color, double width = 1)
    {
        m_layer.lines.append({{from, to}, color, width, false});
    }

    void addText(double left, double top, const QString& text, const QColor& color)
    {
        m_layer.texts.append({{left, top + m_metrics.ascent()}, text, color});
    }

    void addText(double left, double top, const QString& text) { addText(left, top, text, m_content.colors->text); }

    double widthOf(const QString& text) const { return m_metrics.horizontalAdvance(text); }

    void addArea()
    {
        m_layer.fills.append({QRectF(QPointF(), m_frame.size()), m_content.colors->background});
        m_layer.fills.append({m_rect, m_content.colors->plotArea});
    }

    double xOf(double value) const { return onPixel(m_frame.pointAt({m_view.x().position(value), 0}).x()); }
    double yOf(double value, PlotSide side) const
    {
        return onPixel(m_frame.pointAt({0, m_view.y(side).position(value)}).y());
    }

    void addGrid()
    {
        const AxisScale& x = m_frame.xScale();
        const AxisScale& y = m_frame.yScale(LeftSide);
        addGridLines(x.minorTicks(), y.minorTicks(), m_content.colors->minorGrid);
        addGridLines(x.ticks(), y.ticks(), m_content.colors->grid);
        const double left = onPixel(m_rect.left());
        const double right = onPixel(m_rect.right());
        const double top = onPixel(m_rect.top());
        const double bottom = onPixel(m_rect.bottom());
        m_layer.lines.append({{{left, top}, {right, top}, {right, bottom}, {left, bottom}, {left, top}},
                m_content.colors->text, 1, false});
    }

    void addGridLines(const QVector<double>& xs, const QVector<double>& ys, const QColor& color)
    {
        for (const double x : xs)
            addLine({xOf(x), m_rect.top()}, {xOf(x), m_rect.bottom()}, color);
        for (const double y : ys)
            addLine({m_rect.left(), yOf(y, LeftSide)}, {m_rect.right(), yOf(y, LeftSide)}, color);
    }

    /// Labels that would touch the former one are left out.
    void addXLabels()
    {
        const QLocale locale;
        double free = 0;
        for (const double tick : m_frame.xScale().ticks()) {
            const QString text = m_frame.xScale().label(tick, locale);
            const double width = widthOf(text);
            const double x = xOf(tick);
            const double left = qBound(0.0, x - width / 2, std::max(0.0, m_frame.size().width() - width));
            addLine({x, m_rect.bottom()}, {x, m_rect.bottom() + 0.25 * m_line}, m_content.colors->text);
            if (left < free)
                continue;
            addText(left, m_rect.bottom() + 0.3 * m_line, text);
            free = left + width + 0.4 * m_line;
        }
    }

    void addYLabels(PlotSide side)
    {
        const QLocale locale;
        const AxisScale& scale = m_frame.yScale(side);
        for (const double tick : scale.ticks()) {
            const QString text = scale.label(tick, locale);
            const double y = yOf(tick, side);
            const double left
                    = side == LeftSide ? m_rect.left() - 0.4 * m_line - widthOf(text) : m_rect.right() + 0.4 * m_line;
            addText(left, y - m_line / 2, text);
        }
    }

    /// The name of the only curve of an axis, if no legend says it; else the units.
    QString axisTitle(PlotSide side) const
    {
        QStringList units;
        const PlotCurveItem* only = nullptr;
        int count = 0;
        for (const PlotCurveItem* curve : m_content.visibleCurves()) {
            if (sideOf(curve) != side)
                continue;
            only = curve;
            ++count;
            if (!curve->unit().isEmpty() && !units.contains(curve->unit()))
                units += curve->unit();
        }
        return count == 1 && m_frame.legendRows() == 0 ? titled(only->name(), only->unit())
                                                       : units.join(QStringLiteral(", "));
    }

    void addTitles()
    {
        const double top = m_rect.top() - 1.3 * m_line;
        const double room = m_frame.size().width() / 2;
        addText(0.3 * m_line, top, m_metrics.elidedText(axisTitle(LeftSide), Qt::ElideRight, room));
        if (m_content.has(RightSide)) {
            const QString title = m_metrics.elidedText(axisTitle(RightSide), Qt::ElideRight, room);
            addText(m_frame.size().width() - widthOf(title) - 0.3 * m_line, top, title);
        }
        const AxisScale& x = m_frame.xScale();
        const QString note = x.note(QLocale());
        const QString label = titled(m_content.xLabel, x.isOfTime() ? QString() : m_content.xUnit);
        const QString title
                = m_metrics.elidedText(note.isEmpty() ? label : titled(label, note), Qt::ElideRight, m_rect.width());
        addText(m_rect.center().x() - widthOf(title) / 2, m_rect.bottom() + 1.3 * m_line, title);
    }

    /// In rows; the last one says how many curves have no place.
    void addLegend()
    {
        const QVector<PlotCurveItem*> curves = m_content.visibleCurves();
        const double start = 0.3 * m_line;
        double left = start;
        int row = 0;
        for (int i = 0; i < curves.size(); ++i) {
            const QString more = moreText(curves.size() - i);
            const bool isLastRow = row == m_frame.legendRows() - 1;
            const bool isLast = i == curves.size() - 1;
            const double room = m_frame.size().width() - (isLastRow && !isLast ? widthOf(more) : 0);
            const double width = std::min(legendEntryWidth(curves.at(i), m_metrics), room - start);
            if (left > start && left + width > room + m_line) {
                if (isLastRow)
                    return addText(left, 0.1 * m_line + row * m_line, more);
                left = start;
                ++row;
            }
            addLegendEntry(*curves.at(i), left, 0.1 * m_line + row * m_line, width);
            left += width;
        }
    }

    static QString moreText(int count)
    {
        return QCoreApplication::translate("PlotImage", "and %1 more").arg(QLocale().toString(count));
    }

    void addLegendEntry(const PlotCurveItem& curve, double left, double top, double width)
    {
        const double middle = onPixel(top + m_line / 2);
        addLine({left, middle}, {left + 1.2 * m_line, middle}, m_content.colorOf(&curve), 3);
        left += 1.5 * m_line;
        const double room = width - 2.8 * m_line;
        const QString name = m_metrics.elidedText(curve.name(), Qt::ElideRight, room);
        addText(left, top, name);
        if (curve.verdict() != Status::None)
            addVerdict(curve.verdict(), {left + widthOf(name) + 0.9 * m_line, middle});
    }

    /// A tick, a cross or an exclamation mark: verdicts are told apart without colours.
    void addVerdict(int verdict, const QPointF& center)
    {
        const double size = 0.3 * m_line;
        const double width = std::max(1.5, m_line / 8);
        const QColor color = m_content.verdictColor(verdict);
        const auto add = [&](const QVector<QPointF>& way) {
            QVector<QPointF> points;
            for (const QPointF& step : way)
                points += center + size * step;
            m_layer.lines.append({points, color, width, false});
        };
        if (verdict == Status::Fail) {
            add({{-1, -1}, {1, 1}});
            add({{-1, 1}, {1, -1}});
        } else if (verdict == Status::Marginal) {
            add({{0, -1.2}, {0, 0.3}});
            add({{0, 0.7}, {0, 1.2}});
        } else {
            add({{-1, 0}, {-0.3, 0.8}, {1, -0.9}});
        }
    }

    bool isEmpty() const
    {
        const QVector<PlotCurveItem*> curves = m_content.visibleCurves();
        return std::all_of(curves.cbegin(), curves.cend(),
                [](const PlotCurveItem* curve) { return curve->store().xExtent().isEmpty(); });
    }

    void addEmptyText()
    {
        const QString text = m_metrics.elidedText(m_content.emptyText(), Qt::ElideRight, m_rect.width());
        addText(m_rect.center().x() - widthOf(text) / 2, m_rect.center().y() - m_line / 2, text);
    }

    const PlotContent& m_content;
    const PlotView& m_view;
    const PlotFrame& m_frame;
    QRectF m_rect;
    double m_line;
    QFontMetricsF m_metrics;
    SceneLayer m_layer;
};

} // namespace

SceneLayer plotBackdrop(const PlotContent& content, const PlotView& view, const PlotFrame& frame)
{
    return BackdropBuilder(content, view, frame).build();
}

} // namespace uiutils
