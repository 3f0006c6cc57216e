#include "driver_p.h"

#include <embedded/embeddedservice.h>

#include <algorithm>

namespace kiv::simulation {

Driver::Driver(embedded::EmbeddedService* service, const Plan& plan, const Clock& clock)
    : m_service(service)
    , m_judgements(plan.judgements)
    , m_clock(clock)
    , m_movements(service, plan.motions, plan.seed)
    , m_actions(service, plan)
    , m_happenings(service, plan)
{
    m_actions.started = [this](const QString& id, qint64 now) { m_movements.startAction(id, now); };
    m_actions.ended = [this](const QString& id) { m_movements.endAction(id); };
    m_happenings.vanishing = [this] { m_actions.stopAll(); };
    m_happenings.judged = [this](const QString& id, const Condition& inFile) {
        return m_judges ? m_judges->judged(id, inFile) : inFile;
    };
}

void Driver::begin(bool isStill)
{
    m_isStill = isStill;
    if (!m_judgements.isEmpty()) {
        m_judges = new Judges(m_service, m_judgements);
        m_judges->changed = [self = weak_from_this()](const QString& id, const Condition& condition) {
            const auto driver = self.lock();
            return driver ? driver->m_happenings.changed(id, condition) : condition;
        };
    }
    takeOverActions();
    if (!isStill)
        m_movements.begin(m_clock());
    // What happens from the beginning has happened before clients see the service.
    advance();
}

void Driver::takeOverActions()
{
    for (int i = 0; i < m_actions.size(); ++i) {
        m_service->setActionHandler(
                m_actions.id(i), [self = shared_from_this(), i](const QString& argument, QString* replyOrError) {
                    return self->callAction(i, argument, replyOrError);
                });
    }
}

bool Driver::callAction(int index, const QString& argument, QString* replyOrError)
{
    *replyOrError = m_happenings.refusalOf(m_actions.id(index));
    if (!replyOrError->isEmpty())
        return false;
    const bool isDone = m_actions.call(index, argument, m_clock(), replyOrError);
    if (m_service && dueChanged)
        dueChanged();
    return isDone;
}

qint64 Driver::due() const
{
    return std::min({m_actions.due(), happeningDue(), m_movements.due()});
}

qint64 Driver::happeningDue() const
{
    return m_isStill ? never : m_happenings.due();
}

void Driver::advance()
{
    const auto self = shared_from_this();
    const qint64 now = m_clock();
    while (m_service && due() <= now) {
        const qint64 acts = m_actions.due();
        const qint64 happens = happeningDue();
        // What ends at a time has ended before something else begins then, and before anything moves.
        if (acts <= std::min(happens, m_movements.due()))
            m_actions.advance(acts);
        else if (happens <= m_movements.due())
            m_happenings.advance(happens);
        else
            m_movements.advance(std::min(now, std::min(acts, happens) - 1));
    }
}

} // namespace kiv::simulation
