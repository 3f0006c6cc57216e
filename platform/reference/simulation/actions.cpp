#include "actions_p.h"

#include "assignments_p.h"
#include "simulationtexts_p.h"

#include <embedded/embeddedservice.h>

#include <algorithm>
#include <cmath>

namespace kiv::simulation {

namespace {

constexpr qint64 progressMs = 200;

} // namespace

SimulatedActions::SimulatedActions(embedded::EmbeddedService* service, const Plan& plan)
    : m_service(service)
{
    for (const SimulatedAction& action : plan.actions)
        m_actions.append({action, RandomSequence(plan.seed, action.id)});
}

bool SimulatedActions::call(int index, const QString& argument, qint64 now, QString* replyOrError)
{
    Entry& entry = m_actions[index];
    const SimulatedAction& action = entry.action;
    const bool isLasting = action.runsMs > 0;
    if (entry.isRunning) {
        *replyOrError = Texts::tr("%1 is running already. Stop it, or wait until it is done.").arg(action.title);
        return false;
    }
    const bool isFailing = fails(entry);
    *replyOrError = isFailing && !isLasting ? action.fail : assignmentsProblem(action.set, argument);
    if (!replyOrError->isEmpty())
        return false;
    *replyOrError = withArgument(action.reply, argument);
    if (Entry* stopped = find(action.stops)) {
        if (stopped->isRunning)
            end(*stopped, stopped->action.whenStopped);
    }
    entry.isFailing = isFailing;
    if (m_service)
        assign(m_service, action.set, argument, entry.random, &entry.drawn);
    if (isLasting && m_service)
        run(entry, argument, now);
    return true;
}

bool SimulatedActions::fails(Entry& entry)
{
    return entry.action.failingShare > 0 && entry.random.at(entry.drawn++) < entry.action.failingShare;
}

void SimulatedActions::run(Entry& entry, const QString& argument, qint64 now)
{
    const double share = entry.isFailing ? entry.random.at(entry.drawn++) : 1;
    entry.isRunning = true;
    entry.begun = now;
    entry.ends = now + qint64(std::ceil(double(entry.action.runsMs) * share));
    entry.nextProgress = entry.action.progress.isEmpty() ? never : now + progressMs;
    entry.argument = argument;
    setProgress(entry, 0);
    if (entry.isRunning && m_service && started)
        started(entry.action.id, now);
}

void SimulatedActions::stopAll()
{
    for (Entry& entry : m_actions) {
        if (entry.isRunning && m_service)
            end(entry, entry.action.whenStopped);
    }
}

qint64 SimulatedActions::due() const
{
    qint64 first = never;
    for (const Entry& entry : m_actions) {
        if (entry.isRunning)
            first = std::min({first, entry.ends, entry.nextProgress});
    }
    return first;
}

void SimulatedActions::advance(qint64 now)
{
    for (Entry& entry : m_actions) {
        if (entry.isRunning && m_service)
            advance(entry, now);
    }
}

void SimulatedActions::advance(Entry& entry, qint64 now)
{
    if (now < entry.ends) {
        if (now >= entry.nextProgress) {
            entry.nextProgress += ((now - entry.nextProgress) / progressMs + 1) * progressMs;
            setProgress(entry, 100.0 * double(now - entry.begun) / double(entry.action.runsMs));
        }
        return;
    }
    const QString error = entry.isFailing ? entry.action.fail : QString();
    if (!entry.isFailing)
        setProgress(entry, 100);
    // A slot that heard of the progress may have stopped it.
    if (!entry.isRunning || !m_service)
        return;
    end(entry, entry.isFailing ? entry.action.whenFailed : entry.action.whenDone);
    if (!error.isEmpty() && m_service)
        m_service->reportError(error);
}

void SimulatedActions::end(Entry& entry, const QVector<Assignment>& assignments)
{
    entry.isRunning = false;
    const QString argument = entry.argument;
    if (ended)
        ended(entry.action.id);
    assign(m_service, assignments, argument, entry.random, &entry.drawn);
}

void SimulatedActions::setProgress(const Entry& entry, double percent)
{
    if (m_service && !entry.action.progress.isEmpty())
        m_service->setValue(entry.action.progress, std::floor(percent));
}

SimulatedActions::Entry* SimulatedActions::find(const QString& id)
{
    const auto found = std::find_if(
            m_actions.begin(), m_actions.end(), [&id](const Entry& entry) { return entry.action.id == id; });
    return found == m_actions.end() ? nullptr : found;
}

} // namespace kiv::simulation
