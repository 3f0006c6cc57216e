#include "scenebuilder.h"

#include "plotreadout.h"

#include <algorithm>
#include <cmath>

namespace uiutils {

namespace {

class OverlayBuilder
{
public:
    OverlayBuilder(const PlotContent& content, const PlotView& view, const PlotFrame& frame)
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
        m_layer = plotLimits(m_content, m_view, m_frame);
        for (const PlotMarkerItem* marker : m_content.markers) {
            if (marker->isVisible())
                addMarker(*marker);
        }
        if (isInSight(m_content.cursorX))
            addCursor();
        return m_layer;
    }

private:
    bool isInSight(double x) const
    {
        const double position = m_view.x().position(x);
        return position >= 0 && position <= 1;
    }

    double xOf(double x) const { return std::floor(m_frame.pointAt({m_view.x().position(x), 0}).x()) + 0.5; }

    void addLine(double x, const QColor& color, double width)
    {
        m_layer.lines.append({{{x, m_rect.top()}, {x, m_rect.bottom()}}, color, width, false});
    }

    /// Its label is on a plate, so that it can be read above curves.
    void addMarker(const PlotMarkerItem& marker)
    {
        if (!isInSight(marker.x()))
            return;
        const QColor color = marker.color().isValid() ? marker.color() : m_content.colors->marker;
        const double x = xOf(marker.x());
        addLine(x, color, std::max(1.0, m_line / 10));
        addDots(marker.x(), color);
        if (marker.label().isEmpty())
            return;
        const QString text = m_metrics.elidedText(marker.label(), Qt::ElideRight, m_rect.width() / 4);
        const double width = m_metrics.horizontalAdvance(text) + 0.6 * m_line;
        const double left = qBound(m_rect.left(), x - width / 2, std::max(m_rect.left(), m_rect.right() - width));
        m_layer.fills.append({QRectF(left, m_rect.bottom() - m_line, width, m_line), color});
        m_layer.texts.append({{left + 0.3 * m_line, m_rect.bottom() - m_line + m_metrics.ascent()}, text,
                m_content.colors->plotArea});
    }

    void addDots(double x, const QColor& ring)
    {
        for (const PlotReadout& readout : plotReadouts(m_content, m_view, x)) {
            const QPointF position(m_view.x().position(x), m_view.y(sideOf(readout.curve)).position(readout.y));
            if (!(position.y() >= 0 && position.y() <= 1))
                continue;
            const double radius = std::max(3.0, m_line / 4);
            m_layer.dots.append({m_frame.pointAt(position), radius, ring});
            m_layer.dots.append({m_frame.pointAt(position), 0.6 * radius, m_content.colorOf(readout.curve)});
        }
    }

    void addCursor()
    {
        addLine(xOf(m_content.cursorX), m_content.colors->cursor, std::max(1.0, m_line / 10));
        addDots(m_content.cursorX, m_content.colors->cursor);
        if (m_content.hasReadout)
            addReadout();
    }

    /// On the side where the cursor is not, if there is room for all of it.
    void addReadout()
    {
        const QVector<PlotReadout> readouts = plotReadouts(m_content, m_view, m_content.cursorX);
        QStringList lines {plotXText(m_content, m_view, m_content.cursorX)};
        for (const PlotReadout& readout : readouts)
            lines += rowText(readout);
        const double most = m_rect.width() / 2 - m_line;
        double width = 0;
        for (QString& line : lines) {
            line = m_metrics.elidedText(line, Qt::ElideMiddle, most);
            width = std::max(width, m_metrics.horizontalAdvance(line));
        }
        const int rows = std::min(lines.size(), int((m_rect.height() - m_line) / m_line));
        if (rows < lines.size() || most < 3 * m_line)
            return;
        const bool isLeft = xOf(m_content.cursorX) > m_rect.center().x();
        const QSizeF size(width + 1.4 * m_line, (rows + 0.4) * m_line);
        const double left = isLeft ? m_rect.left() + 0.4 * m_line : m_rect.right() - 0.4 * m_line - size.width();
        const QPointF corner(std::floor(left) + 0.5, std::floor(m_rect.top() + 0.4 * m_line) + 0.5);
        const QRectF box(corner, size.toSize());
        addBox(box);
        for (int row = 0; row < rows; ++row)
            addRow(box, row, lines.at(row), row > 0 ? readouts.at(row - 1).curve : nullptr);
    }

    void addBox(const QRectF& box)
    {
        QColor plate = m_content.colors->background;
        plate.setAlphaF(0.9);
        m_layer.fills.append({box, plate});
        m_layer.lines.append({{box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft(), box.topLeft()},
                m_content.colors->text, 1, false});
    }

    static QString rowText(const PlotReadout& readout)
    {
        const QString name = readout.curve->name();
        const QString value = name.isEmpty() ? readout.text : QStringLiteral("%1: %2").arg(name, readout.text);
        return readout.status > Status::Pass ? QStringLiteral("%1, %2").arg(value, plotVerdictText(readout.status))
                                             : value;
    }

    void addRow(const QRectF& box, int row, const QString& text, const PlotCurveItem* curve)
    {
        const double top = box.top() + (row + 0.2) * m_line;
        const double left = box.left() + (curve ? 1.1 : 0.3) * m_line;
        m_layer.texts.append({{left, top + m_metrics.ascent()}, text, m_content.colors->text});
        if (curve)
            m_layer.fills.append({QRectF(box.left() + 0.3 * m_line, top + 0.25 * m_line, 0.5 * m_line, 0.5 * m_line),
                    m_content.colorOf(curve)});
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

SceneLayer plotOverlay(const PlotContent& content, const PlotView& view, const PlotFrame& frame)
{
    return OverlayBuilder(content, view, frame).build();
}

} // namespace uiutils
