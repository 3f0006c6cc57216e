#pragma once

#include <QAbstractAnimation>
#include <QAnimationDriver>

namespace uiutils::qmltool {

/// An animation without end and effect. While it runs, timers of pages follow the driver of the animations too;
/// otherwise they would wait for the clock of the machine.
class EndlessAnimation : public QAbstractAnimation
{
    Q_OBJECT

public:
    int duration() const override { return -1; }

protected:
    void updateCurrentTime(int) override { }
};

/// The time of a page's animations and timers, when it is not the machine's: it goes on only when it is told to, so
/// that a page looks the same however slow the machine is.
class SteppedTime : public QAnimationDriver
{
    Q_OBJECT

public:
    /// Becomes the time of all animations. Make it before the first one starts.
    SteppedTime();
    ~SteppedTime() override;

    /// Milliseconds.
    qint64 now() const { return m_now; }
    void setNow(qint64 ms) { m_now = ms; }
    /// Lets everything go on to a moment.
    void stepTo(qint64 ms);

    qint64 elapsed() const override { return m_now - m_begin; }

protected:
    void start() override;

private:
    EndlessAnimation m_endless;
    qint64 m_now = 0;
    /// When the driver was started.
    qint64 m_begin = 0;
};

} // namespace uiutils::qmltool
