#pragma once

#include "curvetrace.h"
#include "plotbounds.h"
#include "service/kivdata.h"

#include <QAbstractItemModel>
#include <QColor>
#include <QObject>
#include <QPointer>
#include <QQmlListProperty>
#include <QString>
#include <QVariantList>
#include <QVector>

#include <memory>

namespace uiutils {

class CurveFeed;

/// One curve of a LivePlot: its points, what it is judged by, how it looks. Points come from code (append(),
/// setPoints()), from two array items of a service, or from two roles of a model. A point that is not finite interrupts
/// the curve. In QML: PlotCurve.
class PlotCurveItem : public QObject
{
    Q_OBJECT
    /// Limits and masks; they belong to the curve's page.
    Q_PROPERTY(QQmlListProperty<uiutils::PlotBounds> limits READ limits CONSTANT)
    Q_CLASSINFO("DefaultProperty", "limits")
    /// What the curve is called in legend, readout and reports.
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    /// Of its values, such as "dB".
    Q_PROPERTY(QString unit READ unit WRITE setUnit NOTIFY unitChanged)
    /// An invalid colour, the default, means the next one of the plot's colours.
    Q_PROPERTY(QColor color READ color WRITE setColor RESET resetColor NOTIFY colorChanged)
    /// Of the line, in pixels; 0, the default, means the plot's.
    Q_PROPERTY(double width READ width WRITE setWidth NOTIFY widthChanged)
    /// Whether the axis on the right shows its values; false by default.
    Q_PROPERTY(bool rightAxis READ rightAxis WRITE setRightAxis NOTIFY rightAxisChanged)
    /// True by default. A curve that is hidden is judged all the same, and does not count for axes.
    Q_PROPERTY(bool visible READ isVisible WRITE setVisible NOTIFY visibleChanged)
    /// How many points are kept, 1 to 10,000,000; 1,000,000 by default. When there are more, the oldest are discarded,
    /// at least an eighth at a time.
    Q_PROPERTY(int capacity READ capacity WRITE setCapacity NOTIFY capacityChanged)
    /// How many points there are.
    Q_PROPERTY(int count READ count NOTIFY pointsChanged)
    /// Of the last point; not a number without one.
    Q_PROPERTY(double lastX READ lastX NOTIFY pointsChanged)
    Q_PROPERTY(double lastY READ lastY NOTIFY pointsChanged)
    /// How the worst point is judged: a code of Status; Status.None without limits or points.
    Q_PROPERTY(int verdict READ verdict NOTIFY verdictChanged)
    /// The array items of a service whose values are the points; both or neither. The shorter one determines how many
    /// points there are.
    Q_PROPERTY(KivData* xItem READ xItem WRITE setXItem NOTIFY sourceChanged)
    Q_PROPERTY(KivData* yItem READ yItem WRITE setYItem NOTIFY sourceChanged)
    /// The model with a point in each row, and the names of the roles that have its numbers. Without `xRole`, x is the
    /// row's number, from 1.
    Q_PROPERTY(QAbstractItemModel* model READ model WRITE setModel NOTIFY sourceChanged)
    Q_PROPERTY(QString xRole READ xRole WRITE setXRole NOTIFY sourceChanged)
    Q_PROPERTY(QString yRole READ yRole WRITE setYRole NOTIFY sourceChanged)

public:
    explicit PlotCurveItem(QObject* parent = nullptr);
    ~PlotCurveItem() override;

    QQmlListProperty<PlotBounds> limits();
    QString name() const { return m_name; }
    void setName(const QString& name);
    QString unit() const { return m_unit; }
    void setUnit(const QString& unit);
    QColor color() const { return m_color; }
    void setColor(const QColor& color);
    void resetColor() { setColor(QColor()); }
    double width() const { return m_width; }
    void setWidth(double width);
    bool rightAxis() const { return m_isRight; }
    void setRightAxis(bool isRight);
    bool isVisible() const { return m_isVisible; }
    void setVisible(bool isVisible);
    int capacity() const { return m_capacity; }
    void setCapacity(int capacity);
    int count() const { return m_store.size(); }
    double lastX() const;
    double lastY() const;
    int verdict() const { return m_verdict; }

    KivData* xItem() const;
    void setXItem(KivData* item);
    KivData* yItem() const;
    void setYItem(KivData* item);
    QAbstractItemModel* model() const;
    void setModel(QAbstractItemModel* model);
    QString xRole() const;
    void setXRole(const QString& role);
    QString yRole() const;
    void setYRole(const QString& role);

    /// Adds a point after the last one.
    Q_INVOKABLE void append(double x, double y);
    /// Adds points; the shorter list determines how many. What is no number interrupts the curve.
    Q_INVOKABLE void appendPoints(const QVariantList& xs, const QVariantList& ys);
    /// Replaces all points; the same rules.
    Q_INVOKABLE void setPoints(const QVariantList& xs, const QVariantList& ys);
    /// Removes all points.
    Q_INVOKABLE void clear();
    /// The curve's value at `x`, between points on the line that is drawn; not a number beyond the ends and in gaps.
    Q_INVOKABLE double valueAt(double x) const;

    /// The same from C++.
    void append(const QVector<QPointF>& points);
    void setPoints(const QVector<QPointF>& points);

    /// For the plot: which axes are logarithmic.
    void setScales(bool isLogarithmicX, bool isLogarithmicY);
    const CurveStore& store() const { return m_store; }
    QVector<CurveBound> bounds() const;
    CurveSource source() const { return {m_store, m_judge, m_verdicts}; }
    /// How the point at `x` is judged.
    int verdictAt(double x) const;

Q_SIGNALS:
    void nameChanged();
    void unitChanged();
    void colorChanged();
    void widthChanged();
    void rightAxisChanged();
    void visibleChanged();
    void capacityChanged();
    void sourceChanged();
    void pointsChanged();
    void verdictChanged();
    /// Anything that the plot shows of it has changed, except points.
    void changed();

private:
    static void addLimit(QQmlListProperty<PlotBounds>* list, PlotBounds* limit);
    static int limitCount(QQmlListProperty<PlotBounds>* list);
    static PlotBounds* limitAt(QQmlListProperty<PlotBounds>* list, int index);
    static void clearLimits(QQmlListProperty<PlotBounds>* list);
    void dropLimit(QObject* limit);
    void takePoint(const QPointF& point);
    void judgeAnew();
    void judgeFrom(int index);
    void discardOldest();
    void announceVerdict();

    QString m_name;
    QString m_unit;
    QColor m_color;
    double m_width = 0;
    bool m_isRight = false;
    bool m_isVisible = true;
    bool m_isLogarithmicX = false;
    bool m_isLogarithmicY = false;
    int m_capacity = 1000 * 1000;
    QVector<PlotBounds*> m_limits;
    CurveStore m_store;
    CurveJudge m_judge;
    CurveVerdicts m_verdicts;
    int m_verdict = Status::None;
    std::unique_ptr<CurveFeed> m_feed;
};

} // namespace uiutils
