#pragma once

#include <QObject>
#include <QPointF>
#include <QVector>

namespace uiutils {

/// What fingers, or the mouse as one finger, mean on a plot: one pans, or moves the cursor if it begins there; two zoom
/// around themselves; a tap, and a double tap.
class PlotGestures : public QObject
{
    Q_OBJECT

public:
    /// The fingers that are down now, none at the end; in milliseconds of the events' clock. `cursor` is where the
    /// cursor is, NaN for nowhere, and `reach` how near a finger must be to take it.
    void take(const QVector<QPointF>& fingers, quint64 time, double cursor, double reach);
    /// Another has taken the fingers.
    void cancel();
    /// Whether something is being moved, so that no list around the plot may take the fingers.
    bool isMoving() const { return m_state == Panning || m_state == MovingCursor || m_state == Pinching; }

Q_SIGNALS:
    void tapped(const QPointF& at);
    void doubleTapped();
    /// The cursor is to be at this place along x.
    void cursorMoved(double x);
    void panned(const QPointF& by);
    /// `axes` are those of PlotView.
    void zoomed(double factor, const QPointF& at, int axes);

private:
    enum State { Idle, Pressed, Panning, MovingCursor, Pinching, Over };

    void press(const QPointF& at, double cursor, double reach);
    void moveOne(const QPointF& to);
    void startPan(const QPointF& way);
    void startPinch(const QPointF& first, const QPointF& second);
    void movePinch(const QPointF& first, const QPointF& second);
    void release(quint64 time);
    void tap(quint64 time);

    State m_state = Idle;
    int m_fingers = 0;
    bool m_isOnCursor = false;
    QPointF m_start;
    QPointF m_last;
    // A pan keeps to one axis that it began along.
    bool m_pansX = true;
    bool m_pansY = true;
    int m_pinchAxes = 0;
    double m_distance = 0;
    quint64 m_tapTime = 0;
    QPointF m_tapPlace;
    bool m_hasTap = false;
};

} // namespace uiutils
