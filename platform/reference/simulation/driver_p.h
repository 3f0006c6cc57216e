#pragma once

#include "actions_p.h"
#include "happenings_p.h"
#include "judges_p.h"
#include "movements_p.h"

#include <memory>

namespace kiv::simulation {

/// Drives one service as its plan says. It has no clock of its own: whoever owns it tells the time.
class Driver : public std::enable_shared_from_this<Driver>
{
public:
    /// Milliseconds since the simulation began.
    using Clock = std::function<qint64()>;

    Driver(embedded::EmbeddedService* service, const Plan& plan, const Clock& clock);

    /// Judges the values, takes the actions over, and, unless the service is to stand still, sets it in motion.
    void begin(bool isStill);

    /// When there is something to do next; `never` when there is nothing.
    qint64 due() const;
    /// Does everything that is due, in the order of time. The service may be gone after that.
    void advance();

    /// Called when due() may have become earlier.
    std::function<void()> dueChanged;

private:
    qint64 happeningDue() const;
    void takeOverActions();
    bool callAction(int index, const QString& argument, QString* replyOrError);

    const QPointer<embedded::EmbeddedService> m_service;
    const QVector<Judgement> m_judgements;
    const Clock m_clock;
    Movements m_movements;
    SimulatedActions m_actions;
    Happenings m_happenings;
    QPointer<Judges> m_judges;
    bool m_isStill = true;
};

} // namespace kiv::simulation
