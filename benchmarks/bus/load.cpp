#include "load.h"

#include "commands.h"
#include "workload.h"

namespace bench {

Load::Load(const std::function<void(int first)>& turn)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, [this, turn] {
        turn(m_changes);
        m_changes += changesPerTurn;
        if (m_changes < loadChanges)
            return;
        m_timer.stop();
        answer({});
    });
    m_timer.start(turnMs);
}

} // namespace bench
