#include "curvefeed.h"

#include <QtMath>

#include <algorithm>

namespace uiutils {

double plotNumber(const QVariant& value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber ? number : qQNaN();
}

QVector<QPointF> plotPoints(const QVariantList& xs, const QVariantList& ys)
{
    QVector<QPointF> points;
    const int count = std::min(xs.size(), ys.size());
    points.reserve(count);
    for (int i = 0; i < count; ++i)
        points += QPointF(plotNumber(xs.at(i)), plotNumber(ys.at(i)));
    return points;
}

void CurveFeed::setItems(KivData* x, KivData* y)
{
    for (KivData* item : {m_xItem.data(), m_yItem.data()}) {
        if (item)
            disconnect(item, nullptr, this, nullptr);
    }
    m_xItem = x;
    m_yItem = y;
    for (KivData* item : {x, y}) {
        if (item)
            connect(item, &KivData::valueChanged, this, &CurveFeed::readLater);
    }
    readLater();
}

void CurveFeed::setModel(QAbstractItemModel* model)
{
    if (m_model)
        disconnect(m_model, nullptr, this, nullptr);
    m_model = model;
    if (model) {
        connect(model, &QAbstractItemModel::rowsInserted, this, &CurveFeed::rowsInserted);
        connect(model, &QAbstractItemModel::rowsRemoved, this, &CurveFeed::readLater);
        connect(model, &QAbstractItemModel::rowsMoved, this, &CurveFeed::readLater);
        connect(model, &QAbstractItemModel::dataChanged, this, &CurveFeed::readLater);
        connect(model, &QAbstractItemModel::layoutChanged, this, &CurveFeed::readLater);
        connect(model, &QAbstractItemModel::modelReset, this, &CurveFeed::readLater);
        // Points of a model that is gone are gone.
        connect(model, &QObject::destroyed, this, [this] { Q_EMIT replaced({}); });
    }
    readLater();
}

void CurveFeed::setRoles(const QString& x, const QString& y)
{
    m_xRole = x;
    m_yRole = y;
    readLater();
}

void CurveFeed::readLater()
{
    if (m_isWaiting)
        return;
    m_isWaiting = true;
    QMetaObject::invokeMethod(this, &CurveFeed::read, Qt::QueuedConnection);
}

void CurveFeed::read()
{
    m_isWaiting = false;
    if (isComplete())
        Q_EMIT replaced(values());
}

QVector<QPointF> CurveFeed::values() const
{
    if (m_model)
        return rows(0, m_model->rowCount() - 1);
    return plotPoints(m_xItem->getValue().toList(), m_yItem->getValue().toList());
}

/// What follows the last row is added at once, unless everything is read soon.
void CurveFeed::rowsInserted(const QModelIndex& parent, int first, int last)
{
    if (parent.isValid() || m_isWaiting)
        return;
    if (last == m_model->rowCount() - 1)
        Q_EMIT added(rows(first, last));
    else
        readLater();
}

QVector<QPointF> CurveFeed::rows(int first, int last) const
{
    const QHash<int, QByteArray> names = m_model->roleNames();
    const int xRole = names.key(m_xRole.toUtf8(), -1);
    const int yRole = names.key(m_yRole.toUtf8(), -1);
    QVector<QPointF> points;
    for (int row = first; row <= last; ++row) {
        const QModelIndex index = m_model->index(row, 0);
        const double x = m_xRole.isEmpty() ? row + 1 : plotNumber(m_model->data(index, xRole));
        points += QPointF(x, plotNumber(m_model->data(index, yRole)));
    }
    return points;
}

} // namespace uiutils
