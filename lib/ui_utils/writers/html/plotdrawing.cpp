#include "writers/html/plotdrawing_p.h"

#include "writers/pages/reportdrawing.h"
#include "writers/plots/plotpainter_p.h"
#include "writers/text/plotwords_p.h"
#include "writers/text/reportcontent_p.h"

#include <QPainter>

namespace uiutils {

namespace {

constexpr qreal pointsOfAPixel = 72.0 / 96.0;
/// Columns of curves for each pixel of a screen: as many as paper can show.
constexpr qreal resolutionOfPaper = 2;
/// A legend with more lines continues below its plot.
constexpr int linesOfAPart = 12;

/// A drawing in its own size, or smaller if the page has less room.
class SizedDrawing : public ReportDrawing
{
protected:
    explicit SizedDrawing(const QSizeF& pixels)
        : m_pixels(pixels)
    {
    }

    qreal height(const QSizeF& page) const override { return m_pixels.height() * scaleFor(page); }
    void paint(QPainter& painter, const QSizeF& size) const override
    {
        const qreal scale = scaleFor(size);
        painter.scale(scale, scale);
        paintPixels(painter);
    }
    virtual void paintPixels(QPainter& painter) const = 0;

private:
    qreal scaleFor(const QSizeF& room) const
    {
        return qMin(pointsOfAPixel, qMin(room.width() / m_pixels.width(), room.height() / m_pixels.height()));
    }

    QSizeF m_pixels;
};

class PlotDrawing final : public SizedDrawing
{
public:
    PlotDrawing(const std::shared_ptr<const PlotLayout>& layout, LineRange legend, const QColor& background)
        : SizedDrawing(layout->sizeWith(legend))
        , m_layout(layout)
        , m_legend(legend)
        , m_background(background)
    {
        const QString title = m_layout->title();
        setDescription(ReportWords::tr("%1. %2").arg(
                title.isEmpty() ? ReportWords::tr("Plot") : title, plotInWords(m_layout->data())));
    }

    QString outlineTitle() const override { return m_layout->title(); }

protected:
    void paintPixels(QPainter& painter) const override
    {
        PlotPainter(painter, *m_layout, m_background, resolutionOfPaper).draw(m_legend);
    }

private:
    std::shared_ptr<const PlotLayout> m_layout;
    LineRange m_legend;
    QColor m_background;
};

class LegendDrawing final : public SizedDrawing
{
public:
    LegendDrawing(const std::shared_ptr<const PlotLayout>& layout, LineRange lines)
        : SizedDrawing(layout->legendSize(lines))
        , m_layout(layout)
        , m_lines(lines)
    {
        setDescription(ReportWords::tr("Legend of the plot"));
    }

    qreal spaceAbove() const override { return 0; }

protected:
    void paintPixels(QPainter& painter) const override
    {
        const QColor ink = painter.pen().color();
        painter.setFont(m_layout->font());
        m_layout->legend().draw(painter, {m_layout->legendPlace().x(), 0}, m_lines, ink);
    }

private:
    std::shared_ptr<const PlotLayout> m_layout;
    LineRange m_lines;
};

} // namespace

QVector<ReportItem*> plotItems(const std::shared_ptr<const PlotLayout>& layout, const QColor& background)
{
    const QVector<LineRange> parts = layout->legend().parts(linesOfAPart);
    QVector<ReportItem*> items {new PlotDrawing(layout, parts.value(0), background)};
    for (int i = 1; i < parts.size(); ++i)
        items += new LegendDrawing(layout, parts.at(i));
    return items;
}

} // namespace uiutils
