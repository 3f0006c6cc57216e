#include "plotcontent.h"

#include "writers/plots/plotlayout_p.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <algorithm>

namespace uiutils {

QFont PlotContent::font() const
{
    QFont font = QGuiApplication::font();
    if (!fontFamily.isEmpty())
        font.setFamily(fontFamily);
    font.setPixelSize(qBound(4, int(textSize + 0.5), 200));
    return font;
}

QString PlotContent::emptyText() const
{
    return ownEmptyText.isEmpty() ? QCoreApplication::translate("PlotImage", "No data") : ownEmptyText;
}

QVector<PlotCurveItem*> PlotContent::visibleCurves() const
{
    QVector<PlotCurveItem*> visible;
    for (PlotCurveItem* curve : curves) {
        if (curve->isVisible())
            visible += curve;
    }
    return visible;
}

bool PlotContent::has(PlotSide side) const
{
    const QVector<PlotCurveItem*> visible = visibleCurves();
    return side == LeftSide
            || std::any_of(visible.cbegin(), visible.cend(), [](const PlotCurveItem* c) { return c->rightAxis(); });
}

QColor PlotContent::colorOf(const PlotCurveItem* curve) const
{
    if (curve->color().isValid())
        return curve->color();
    const int index = std::max(0, curves.indexOf(const_cast<PlotCurveItem*>(curve)));
    const QVariantList& own = colors->curves;
    return own.isEmpty() ? plotCurveColor(index) : own.at(index % own.size()).value<QColor>();
}

QColor PlotContent::verdictColor(int status) const
{
    return status == Status::Fail        ? colors->fail
            : status == Status::Marginal ? colors->marginal
            : status == Status::Pass     ? colors->pass
                                         : colors->text;
}

double PlotContent::widthOf(const PlotCurveItem* curve, int status) const
{
    const double width = curve->width() > 0 ? curve->width() : lineWidth;
    return status == Status::Fail ? 2 * width : status == Status::Marginal ? 1.5 * width : width;
}

} // namespace uiutils
