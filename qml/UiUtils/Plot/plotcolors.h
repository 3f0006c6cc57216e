#pragma once

#include <QColor>
#include <QObject>
#include <QVariantList>

namespace uiutils {

/// The colours of a LivePlot, those of paper by default. Set the ones that a theme has; `changed` is emitted for each.
/// In QML: PlotColors, as LivePlot.colors.
class PlotColors : public QObject
{
    Q_OBJECT
    /// Around the curves.
    Q_PROPERTY(QColor background MEMBER background NOTIFY changed)
    /// Below the curves.
    Q_PROPERTY(QColor plotArea MEMBER plotArea NOTIFY changed)
    /// Of scales, legend and frame.
    Q_PROPERTY(QColor text MEMBER text NOTIFY changed)
    Q_PROPERTY(QColor grid MEMBER grid NOTIFY changed)
    /// Between the ticks of a logarithmic axis.
    Q_PROPERTY(QColor minorGrid MEMBER minorGrid NOTIFY changed)
    Q_PROPERTY(QColor cursor MEMBER cursor NOTIFY changed)
    Q_PROPERTY(QColor marker MEMBER marker NOTIFY changed)
    /// Of the lines of limits and masks.
    Q_PROPERTY(QColor limit MEMBER limit NOTIFY changed)
    /// Of verdicts: the marks of the legend, and what exceeds a limit.
    Q_PROPERTY(QColor pass MEMBER pass NOTIFY changed)
    Q_PROPERTY(QColor marginal MEMBER marginal NOTIFY changed)
    Q_PROPERTY(QColor fail MEMBER fail NOTIFY changed)
    /// Of curves without a colour of their own, in turn; empty for those of printed plots.
    Q_PROPERTY(QVariantList curves MEMBER curves NOTIFY changed)

public:
    explicit PlotColors(QObject* parent = nullptr)
        : QObject(parent)
    {
    }

    QColor background = Qt::white;
    QColor plotArea = Qt::white;
    QColor text = QColor(0x263238);
    QColor grid = QColor(0xd5dbe0);
    QColor minorGrid = QColor(0xedf0f2);
    QColor cursor = QColor(0x263238);
    QColor marker = QColor(0x5e35b1);
    QColor limit = QColor(0xc62828);
    QColor pass = QColor(0x2e7d32);
    QColor marginal = QColor(0x9a5b00);
    QColor fail = QColor(0xc62828);
    QVariantList curves;

Q_SIGNALS:
    void changed();
};

} // namespace uiutils
