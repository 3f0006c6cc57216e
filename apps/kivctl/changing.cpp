#include "changing.h"

#include "common/complaint.h"
#include "output.h"
#include "services.h"
#include "settings.h"
#include "texts.h"
#include "values.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

namespace uiutils::kivctl {

using apps::exitDone;
using apps::exitFailed;

namespace {

/// Prints what the service has answered, and writes down what was set.
int finish(Services& services, const Options& options, QJsonObject answer, const QString& reply)
{
    const bool isStored = services.store();
    int printed = exitDone;
    if (options.isJson) {
        answer.insert(QStringLiteral("reply"), reply);
        printed = print(jsonText(QJsonDocument(answer), QJsonDocument::Indented));
    } else if (!reply.isEmpty()) {
        printed = print(tableLine({reply}));
    }
    return isStored ? printed : exitFailed;
}

int carryOut(Services& services, const Options& options, KIVClientInterface* client, const QString& id,
        const QString& argument)
{
    QString reply;
    if (!client->sendAction(id, argument, &reply, options.timeoutMs))
        return services.failed(*client);
    return finish(services, options,
            {{QStringLiteral("service"), client->getServiceName()}, {QStringLiteral("id"), id}}, reply);
}

int apply(Services& services, const Options& options, KIVClientInterface* client, const QJsonObject& values)
{
    const QString id = batchAction(*client);
    if (id.isEmpty())
        return complain(Texts::tr("The service %1 takes no batch of settings. Set them one by one.")
                                .arg(client->getServiceName()),
                exitFailed);
    return carryOut(services, options, client, id, batchArgument(values));
}

struct Target
{
    /// Null when no service takes a batch.
    KIVClientInterface* client = nullptr;
    /// Keys that no service has a setting for.
    QStringList unknown;
};

/// The service that has the most of the settings. It looks for the others among the services that it lives with, and
/// sets none when it does not find one.
Target targetOf(const Services& services, const QStringList& keys)
{
    Target target;
    target.unknown = keys;
    int most = -1;
    const QVector<KIVClientInterface*> clients = services.clients();
    for (KIVClientInterface* const client : clients) {
        const SettingIndex index(*client);
        int count = 0;
        for (const QString& key : keys) {
            if (index.idOf(key).isEmpty())
                continue;
            ++count;
            target.unknown.removeAll(key);
        }
        if (count <= most || batchAction(*client).isEmpty())
            continue;
        most = count;
        target.client = client;
    }
    return target;
}

/// Those that the service does not have already: it may reject a setting that did not change as well.
QJsonObject changesOf(const QJsonObject& values, const KIVClientInterface& client, QStringList* unknown)
{
    const SettingIndex index(client);
    const QJsonObject present = settingsOf(client);
    QJsonObject changes;
    for (auto it = values.constBegin(); it != values.constEnd(); ++it) {
        const QString id = index.idOf(it.key());
        if (id.isEmpty())
            *unknown += it.key();
        else if (present.value(id) != it.value())
            changes.insert(it.key(), it.value());
    }
    return changes;
}

} // namespace

int set(Services& services, const Options& options)
{
    int exitStatus = exitDone;
    const QString id = options.operands.constFirst();
    if (!services.open([&] { return services.item(id); }, &exitStatus))
        return exitStatus;
    const KIVClientItem* const item = services.item(id);
    if (!item)
        return services.unknownItems({id});
    QString problem;
    const QVariant value = settingValue(*item, options.operands.at(1), &problem);
    if (!problem.isEmpty())
        return complain(problem, exitFailed);
    KIVClientInterface* const client = services.owner(id);
    if (!client->setItem(id, value))
        return services.failed(*client);
    return finish(services, options,
            {{QStringLiteral("service"), client->getServiceName()}, {QStringLiteral("id"), id}}, QString());
}

int batch(Services& services, const Options& options)
{
    int exitStatus = exitDone;
    QJsonObject values;
    QString problem;
    if (!readSettings(options.operands.constFirst(), &values, &problem))
        return complain(problem, exitFailed);
    if (!services.open({}, &exitStatus))
        return exitStatus;
    const Target target = targetOf(services, values.keys());
    if (!target.unknown.isEmpty())
        return services.unknownItems(target.unknown);
    if (!target.client)
        return complain(Texts::tr("No service takes a batch of settings."), exitFailed);
    return apply(services, options, target.client, values);
}

int load(Services& services, const Options& options)
{
    int exitStatus = exitDone;
    QJsonObject values;
    QString problem;
    if (!readSettings(options.operands.at(1), &values, &problem))
        return complain(problem, exitFailed);
    KIVClientInterface* const client = services.openFor(options.operands.constFirst(), &exitStatus);
    if (!client)
        return exitStatus;
    QStringList unknown;
    const QJsonObject changes = changesOf(values, *client, &unknown);
    if (!unknown.isEmpty())
        return services.unknownItems(unknown);
    if (!changes.isEmpty())
        return apply(services, options, client, changes);
    return finish(services, options, {{QStringLiteral("service"), client->getServiceName()}},
            Texts::tr("The settings of %1 are as the file has them.").arg(client->getServiceName()));
}

int action(Services& services, const Options& options)
{
    int exitStatus = exitDone;
    const QString id = options.operands.constFirst();
    if (!services.open([&] { return services.owner(id); }, &exitStatus))
        return exitStatus;
    KIVClientInterface* const client = services.owner(id);
    return client ? carryOut(services, options, client, id, options.operands.value(1)) : services.unknownItems({id});
}

} // namespace uiutils::kivctl
