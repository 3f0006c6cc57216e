#include "playback_p.h"

#include "player_p.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace kiv::replay {

namespace {

/// Longer waits are cut into such.
constexpr double longestWaitMs = 3600.0 * 1000;

Playback::Clock machineClock()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] { return timer.elapsed(); };
}

} // namespace

Playback::Playback(Player* player, const Clock& clock)
    : m_player(player)
    , m_clock(clock ? clock : machineClock())
    , m_position(player->position())
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Playback::turn);
}

Playback::~Playback() = default;

qint64 Playback::position() const
{
    return m_isPaused ? m_position : m_position + qint64(double(m_clock() - m_since) * m_speed);
}

void Playback::rebase(qint64 position)
{
    m_position = position;
    m_since = m_clock();
}

void Playback::setSpeed(double speed)
{
    rebase(position());
    m_speed = speed;
    begin();
}

void Playback::setPaused(bool isPaused)
{
    rebase(position());
    m_isPaused = isPaused;
    begin();
}

void Playback::jumpTo(qint64 ms)
{
    m_player->seek(ms);
    rebase(ms);
    begin();
}

void Playback::begin()
{
    m_isEnding = false;
    if (m_isPaused)
        m_timer.stop();
    else
        m_timer.start(0);
}

void Playback::turn()
{
    if (m_isPaused)
        return;
    if (!m_player->advanceTo(position(), Player::EachHeard)) {
        m_timer.start(0);
        return;
    }
    const std::optional<qint64> next = m_player->nextTime();
    if (!next) {
        if (std::exchange(m_isEnding, true))
            atEnd();
        else
            m_timer.start(0);
        return;
    }
    const double wait = double(*next - m_player->position()) / m_speed;
    m_timer.start(int(std::clamp(wait, 0.0, longestWaitMs)));
}

void Playback::atEnd()
{
    // A recording without a moment after its first would be played without end in no time.
    const bool isMoment = m_player->position() == 0;
    if (!m_isLooped || isMoment) {
        setPaused(true);
        Q_EMIT ended();
        return;
    }
    m_player->seek(0);
    rebase(0);
    begin();
}

} // namespace kiv::replay
