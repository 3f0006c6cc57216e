#pragma once

#include "writers/plots/plotlayout_p.h"

#include <QByteArray>
#include <QColor>
#include <QHash>
#include <QPair>
#include <QString>
#include <QVector>

#include <memory>

class ReportItem;

namespace uiutils {

/// The plots of one page. The data of a service is read once, and a picture is drawn once: the page holds its bytes
/// anyway, and drawing it takes longer than the rest of the page.
class PagePlots
{
public:
    using Plot = std::shared_ptr<const PlotLayout>;

    /// `pixelScale` pixels of a picture stand for one of `size`.
    PagePlots(const QSize& size, const QColor& background, int pixelScale);

    /// The plot of a service's curves, or an empty one.
    Plot plot(const QString& service, const QString& title);
    /// A PNG. With more than a hundred titles, the pictures of further ones say none, and are shared.
    QByteArray picture(const Plot& plot);
    /// Leaves the picture in a file for other programs; tables with the same number overwrite it. A document with
    /// thousands of plots does not fill the memory that holds temporary files.
    void leaveFile(const Plot& plot, quint64 tableNumber);
    /// New items for printed pages.
    QVector<ReportItem*> items(const Plot& plot) const;

private:
    using Data = std::shared_ptr<const PlotData>;

    QSize m_size;
    QColor m_background;
    int m_pixelScale;
    QHash<QString, Data> m_data;
    QHash<QPair<const PlotData*, QString>, QByteArray> m_pictures;
};

} // namespace uiutils
