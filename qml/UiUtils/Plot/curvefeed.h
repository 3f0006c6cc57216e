#pragma once

#include "service/kivdata.h"

#include <QAbstractItemModel>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QString>
#include <QVector>

namespace uiutils {

/// The points that a service or a model has for a curve. Changes are read together, when the event loop is reached:
/// the two arrays of a curve come one after the other.
class CurveFeed : public QObject
{
    Q_OBJECT

public:
    CurveFeed() = default;

    KivData* xItem() const { return m_xItem; }
    KivData* yItem() const { return m_yItem; }
    void setItems(KivData* x, KivData* y);
    QAbstractItemModel* model() const { return m_model; }
    void setModel(QAbstractItemModel* model);
    QString xRole() const { return m_xRole; }
    QString yRole() const { return m_yRole; }
    void setRoles(const QString& x, const QString& y);

Q_SIGNALS:
    /// All points, anew.
    void replaced(const QVector<QPointF>& points);
    /// Further ones, at the end.
    void added(const QVector<QPointF>& points);

private:
    void readLater();
    void read();
    void rowsInserted(const QModelIndex& parent, int first, int last);
    QVector<QPointF> rows(int first, int last) const;
    QVector<QPointF> values() const;
    bool isComplete() const { return (m_xItem && m_yItem) || m_model; }

    QPointer<KivData> m_xItem;
    QPointer<KivData> m_yItem;
    QPointer<QAbstractItemModel> m_model;
    QString m_xRole;
    QString m_yRole;
    bool m_isWaiting = false;
};

/// NaN for what is not a number.
double plotNumber(const QVariant& value);
/// The shorter list determines how many points there are.
QVector<QPointF> plotPoints(const QVariantList& xs, const QVariantList& ys);

} // namespace uiutils
