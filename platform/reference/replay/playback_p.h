#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

namespace kiv::replay {

class Player;

/// Lets a player follow a clock: faster or slower, paused, in a loop. Works on the event loop.
class Playback : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds; never goes back.
    using Clock = std::function<qint64()>;

    /// Paused, where the player is. The player must live longer. Without a clock it is that of the machine.
    explicit Playback(Player* player, const Clock& clock = {});
    ~Playback() override;

    /// How many times faster than recorded; above 0.
    void setSpeed(double speed);
    /// Begins again at the end, instead of emitting ended().
    void setLooped(bool isLooped) { m_isLooped = isLooped; }
    void setPaused(bool isPaused);
    bool isPaused() const { return m_isPaused; }
    /// Goes on from a moment of the recording, in milliseconds.
    void jumpTo(qint64 ms);

    /// The moment of the recording that it is now.
    qint64 position() const;

    /// Does what is due; the event loop calls it when something is.
    void turn();

Q_SIGNALS:
    /// The recording is at its end.
    void ended();

private:
    void rebase(qint64 position);
    void begin();
    void atEnd();

    Player* const m_player;
    const Clock m_clock;
    QTimer m_timer;
    double m_speed = 1;
    bool m_isLooped = false;
    bool m_isPaused = true;
    /// Whether clients have still to hear of the last changes.
    bool m_isEnding = false;
    /// The moment of the recording that it was at a moment of the clock.
    qint64 m_position = 0;
    qint64 m_since = 0;
};

} // namespace kiv::replay
