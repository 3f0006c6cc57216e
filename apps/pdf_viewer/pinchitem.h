#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QVector>

class QTouchEvent;

namespace uiutils::viewer {

/// An area in which two fingers pinch, above other items that take touches. It sees touches before all items of its
/// window: lists take a finger that moves and do not release it for a second one. Turning a wheel with Ctrl held is a
/// pinch too.
class PinchItem : public QQuickItem
{
    Q_OBJECT

public:
    explicit PinchItem(QQuickItem* parent = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Two fingers are down; other items receive no more of their touches.
    void started();
    /// The fingers have moved: `factor` is their distance divided by the distance at the start, and `center` is the
    /// point between them in this item.
    void pinched(qreal factor, const QPointF& center);

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    bool takeTouch(QTouchEvent* event);
    void start(const QVector<int>& fingers, qreal distance);
    void cancelForOthers(QTouchEvent* event);

    QPointer<QQuickWindow> m_window;
    bool m_isPinching = false;
    bool m_isCancelling = false;
    QVector<int> m_fingers;
    qreal m_startDistance = 1;
};

} // namespace uiutils::viewer
