#pragma once

#include <QColor>
#include <QObject>
#include <QString>

#include <limits>

namespace uiutils {

/// A place on the x axis of a LivePlot that is kept in sight, with a line and its label. In QML: PlotMarker.
class PlotMarkerItem : public QObject
{
    Q_OBJECT
    /// Not a number, the default, means nowhere.
    Q_PROPERTY(double x READ x WRITE setX NOTIFY xChanged)
    /// What is written above the line; short.
    Q_PROPERTY(QString label READ label WRITE setLabel NOTIFY labelChanged)
    /// True by default.
    Q_PROPERTY(bool visible READ isVisible WRITE setVisible NOTIFY visibleChanged)
    /// An invalid colour, the default, means the plot's.
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit PlotMarkerItem(QObject* parent = nullptr)
        : QObject(parent)
    {
    }

    double x() const { return m_x; }
    void setX(double x);
    QString label() const { return m_label; }
    void setLabel(const QString& label);
    bool isVisible() const { return m_isVisible; }
    void setVisible(bool isVisible);
    QColor color() const { return m_color; }
    void setColor(const QColor& color);

Q_SIGNALS:
    void xChanged();
    void labelChanged();
    void visibleChanged();
    void colorChanged();
    /// Any of these.
    void changed();

private:
    double m_x = std::numeric_limits<double>::quiet_NaN();
    QString m_label;
    bool m_isVisible = true;
    QColor m_color;
};

} // namespace uiutils
