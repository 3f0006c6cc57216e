#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QVector>

class QTouchEvent;

namespace uiutils::viewer {

/// An area in which two fingers pinch, over whatever else takes touches there. It sees touches before all items of its
/// window do: lists take a finger that moves and do not give it back when a second one comes. A wheel that turns while
/// Ctrl is held is a pinch too.
class PinchItem : public QQuickItem
{
    Q_OBJECT

public:
    explicit PinchItem(QQuickItem* parent = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Two fingers are down; other items hear no more of them.
    void started();
    /// The fingers have moved: `factor` says how far they are apart, 1 being the distance at the start, and `center` is
    /// the place between them in this item.
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
