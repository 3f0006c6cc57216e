#pragma once

#include "curvejudge.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVector>

#include <limits>

namespace uiutils {

/// What a curve must not exceed: what limits and masks have in common.
class PlotBounds : public QObject
{
    Q_OBJECT
    /// What it is called beside its line; empty by default.
    Q_PROPERTY(QString label READ label WRITE setLabel NOTIFY labelChanged)
    /// How a point beyond it is judged: Status.Fail, the default, or Status.Marginal for a warning.
    Q_PROPERTY(int status READ status WRITE setStatus NOTIFY statusChanged)

public:
    QString label() const { return m_label; }
    void setLabel(const QString& label);
    int status() const { return m_status; }
    void setStatus(int status);

    virtual QVector<CurveBound> bounds() const = 0;

Q_SIGNALS:
    void labelChanged();
    void statusChanged();
    /// Anything of it has changed.
    void changed();

protected:
    explicit PlotBounds(QObject* parent);
    CurveBound bound(CurveBound::Side side, const QVector<QPointF>& points) const;

private:
    QString m_label;
    Status::Code m_status = Status::Fail;
};

/// Two levels that a curve must stay between, along the whole x axis. In QML: PlotLimit.
class PlotLimitItem : public PlotBounds
{
    Q_OBJECT
    /// The lowest permitted value; not a number, the default, for none.
    Q_PROPERTY(double lower READ lower WRITE setLower NOTIFY lowerChanged)
    /// The highest permitted value; not a number, the default, for none.
    Q_PROPERTY(double upper READ upper WRITE setUpper NOTIFY upperChanged)

public:
    explicit PlotLimitItem(QObject* parent = nullptr);

    double lower() const { return m_lower; }
    void setLower(double lower);
    double upper() const { return m_upper; }
    void setUpper(double upper);

    QVector<CurveBound> bounds() const override;

Q_SIGNALS:
    void lowerChanged();
    void upperChanged();

private:
    double m_lower = std::numeric_limits<double>::quiet_NaN();
    double m_upper = std::numeric_limits<double>::quiet_NaN();
};

/// A limit that is not the same everywhere: a line that a curve must stay on one side of, from the line's first point
/// to its last. In QML: PlotMask.
class PlotMaskItem : public PlotBounds
{
    Q_OBJECT
    /// The corners in ascending order of x, each as [x, y] or a point. What is not finite is left out; a corner to the
    /// left of the one before ends the mask. At most 10,000.
    Q_PROPERTY(QVariantList points READ points WRITE setPoints NOTIFY pointsChanged)
    /// PlotMask.Upper, the default: the curve must stay below; or PlotMask.Lower.
    Q_PROPERTY(Side side READ side WRITE setSide NOTIFY sideChanged)

public:
    enum Side { Upper, Lower };
    Q_ENUM(Side)

    explicit PlotMaskItem(QObject* parent = nullptr);

    QVariantList points() const { return m_points; }
    void setPoints(const QVariantList& points);
    Side side() const { return m_side; }
    void setSide(Side side);

    QVector<CurveBound> bounds() const override;

Q_SIGNALS:
    void pointsChanged();
    void sideChanged();

private:
    QVariantList m_points;
    QVector<QPointF> m_corners;
    Side m_side = Upper;
};

} // namespace uiutils
