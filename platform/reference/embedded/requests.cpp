#include "requests_p.h"

#include "actions_p.h"
#include "configurations_p.h"
#include "pendingwrites_p.h"
#include "texts_p.h"

#include <QThread>
#include <QTimer>

#include <algorithm>

namespace kiv::embedded {

namespace {

/// Not QString::arg(), which would replace a "%2" inside a text.
QString withArgument(QString text, const QString& argument)
{
    return text.replace(QLatin1String("%1"), argument);
}

Outcome followDescription(ServiceData& service, const ActionDescription& does, const QString& argument)
{
    if (!does.fail.isEmpty())
        return {false, does.fail};
    PendingWrites writes;
    for (auto it = does.set.cbegin(); it != does.set.cend(); ++it) {
        const ItemStore::StatePtr state = service.items.find(it.key());
        const QVariant value
                = it->userType() == QMetaType::QString ? QVariant(withArgument(it->toString(), argument)) : *it;
        const QString problem = state
                ? writes.addReport(service, state, value)
                : RequestTexts::tr("The service %1 has no item %2 any more.").arg(service.name, it.key());
        if (!problem.isEmpty())
            return {false, problem};
    }
    const Outcome outcome {true, withArgument(does.reply, argument)};
    writes.apply();
    return outcome;
}

Outcome callHandler(const EmbeddedService::ActionHandler& handler, const QString& argument)
{
    QString text;
    const bool isDone = handler(argument, &text);
    return {isDone, isDone || !text.isEmpty() ? text : RequestTexts::tr("The action failed.")};
}

/// Why clients cannot set the item to the value, whatever its limits; empty when they can.
QString noSettingProblem(const ItemState& state, const QVariant& value)
{
    if (state.isSetting())
        return QString();
    if (!state.description.isClearable)
        return RequestTexts::tr("%1 cannot be set: it is not a setting.").arg(state.title());
    const bool isEmpty = value.userType() == QMetaType::QString && value.toString().isEmpty();
    return isEmpty ? QString() : RequestTexts::tr("%1 cannot be set: it can only be emptied.").arg(state.title());
}

void carryOutLater(EmbeddedService* service, qint64 delayMs, const Request& request)
{
    QTimer::singleShot(std::chrono::milliseconds(delayMs), service, [service, request] {
        if (service->isReachable())
            request(ServiceData::of(*service));
    });
}

} // namespace

Outcome setSetting(ServiceData& service, const QString& id, const QVariant& value)
{
    const ItemStore::StatePtr state = service.items.find(id);
    if (!state)
        return {false, RequestTexts::tr("The service %1 has no item %2.").arg(service.name, id)};
    PendingWrites writes;
    QString problem = noSettingProblem(*state, value);
    if (problem.isEmpty())
        problem = writes.addWrite(service, state, value);
    if (!problem.isEmpty())
        return {false, problem};
    writes.apply();
    return {true, QString()};
}

Outcome carryOut(ServiceData& service, const QString& id, const QString& argument)
{
    // A copy: the handler may replace itself.
    const EmbeddedService::ActionHandler handler = service.handlers.value(id);
    if (handler)
        return callHandler(handler, argument);
    const ItemStore::StatePtr state = listedAction(service.items, id);
    if (state && state->description.does)
        return followDescription(service, *state->description.does, argument);
    if (isManifestAction(service.items, id, applyConfigAction))
        return applyConfiguration(service, argument);
    if (isManifestAction(service.items, id, saveConfigAction))
        return saveConfiguration(service, argument);
    if (state)
        return {false,
                RequestTexts::tr("%1 cannot be carried out: the service %2 has no handler for it.")
                        .arg(state->title(), service.name)};
    return {false, RequestTexts::tr("The service %1 has no action %2.").arg(service.name, id)};
}

int actionDelay(const ServiceData& service, const QString& id)
{
    const ItemStore::StatePtr state = listedAction(service.items, id);
    return state && state->description.does ? state->description.does->delayMs : 0;
}

Outcome callInProcess(EmbeddedService* service, int delayMs, int timeoutMs, const Request& request)
{
    const qint64 delay = qint64(ServiceData::of(*service).delayMs) + delayMs;
    const qint64 timeout = std::max(timeoutMs, 0);
    // The contract forbids an event loop here: the caller's page stands still, as it does on an instrument. Sleeping
    // for no time at all would still cost a turn of the scheduler.
    if (delay > 0)
        QThread::msleep(static_cast<unsigned long>(std::min(delay, timeout)));
    if (delay <= timeout)
        return request(ServiceData::of(*service));
    carryOutLater(service, delay - timeout, request);
    return {false,
            RequestTexts::tr("The service %1 did not answer within %2 ms. It may still carry out the request.")
                    .arg(service->name(), QString::number(timeout))};
}

} // namespace kiv::embedded
