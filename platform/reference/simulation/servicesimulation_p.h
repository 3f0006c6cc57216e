#pragma once

#include "driver_p.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace kiv::simulation {

/// Drives a service by the real time, on the event loop, with one timer. Owned by the service.
class ServiceSimulation final : public QObject
{
    Q_OBJECT

public:
    ServiceSimulation(embedded::EmbeddedService* service, const Plan& plan, bool isStill);
    ~ServiceSimulation() override;

private:
    void advance();
    void arm();
    qint64 now() const { return m_time.elapsed() - m_pause; }

    QElapsedTimer m_time;
    QTimer m_timer {this};
    /// Time that the process stood still.
    qint64 m_pause = 0;
    std::shared_ptr<Driver> m_driver;
};

} // namespace kiv::simulation
