#include "reconnecting_p.h"

#include "bustexts_p.h"

#include <algorithm>

namespace kiv::bus {

namespace {

constexpr int shortestPauseMs = 50;
constexpr int longestPauseMs = 10 * 1000;

Bus busOfEnvironment()
{
    return qEnvironmentVariable("KIV_BUS") == QLatin1String("system") ? Bus::System : Bus::Session;
}

} // namespace

ReconnectingBus::ReconnectingBus(QObject* parent)
    : QObject(parent)
    , m_bus(busOfEnvironment())
{
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &ReconnectingBus::connectNow);
    connect(&m_connection, &Connection::ready, this, &ReconnectingBus::onReady);
    connect(&m_connection, &Connection::lost, this, &ReconnectingBus::onLost);
}

void ReconnectingBus::start()
{
    if (m_pauseMs != 0)
        return;
    m_pauseMs = shortestPauseMs;
    connectNow();
}

void ReconnectingBus::connectNow()
{
    QString problem;
    if (!m_connection.open(m_bus, &problem))
        tryLater(problem);
}

void ReconnectingBus::onReady()
{
    m_pauseMs = shortestPauseMs;
    m_wasReady = true;
    Q_EMIT ready();
}

void ReconnectingBus::onLost()
{
    const bool wasReady = std::exchange(m_wasReady, false);
    tryLater(wasReady ? BusTexts::tr("the connection was closed") : BusTexts::tr("it does not take the connection"));
    if (wasReady)
        Q_EMIT lost();
}

void ReconnectingBus::tryLater(const QString& reason)
{
    m_pause.start(m_pauseMs);
    m_pauseMs = std::min(2 * m_pauseMs, longestPauseMs);
    Q_EMIT failed(m_bus == Bus::System ? BusTexts::tr("The system bus cannot be reached: %1.").arg(reason)
                                       : BusTexts::tr("The session bus cannot be reached: %1.").arg(reason));
}

} // namespace kiv::bus
