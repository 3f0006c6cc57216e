#include "plotmarkeritem.h"

#include <cmath>

namespace uiutils {

void PlotMarkerItem::setX(double x)
{
    if (x == m_x || (std::isnan(x) && std::isnan(m_x)))
        return;
    m_x = x;
    Q_EMIT xChanged();
    Q_EMIT changed();
}

void PlotMarkerItem::setLabel(const QString& label)
{
    if (label == m_label)
        return;
    m_label = label;
    Q_EMIT labelChanged();
    Q_EMIT changed();
}

void PlotMarkerItem::setVisible(bool isVisible)
{
    if (isVisible == m_isVisible)
        return;
    m_isVisible = isVisible;
    Q_EMIT visibleChanged();
    Q_EMIT changed();
}

void PlotMarkerItem::setColor(const QColor& color)
{
    if (color == m_color)
        return;
    m_color = color;
    Q_EMIT colorChanged();
    Q_EMIT changed();
}

} // namespace uiutils
