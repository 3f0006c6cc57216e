#include "reading.h"

#include "common/complaint.h"
#include "output.h"
#include "services.h"
#include "settings.h"
#include "values.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QJsonArray>

#include <algorithm>

namespace uiutils::kivctl {

using apps::exitDone;

namespace {

int printJson(const QJsonDocument& document)
{
    return print(jsonText(document, QJsonDocument::Indented));
}

/// What could be read is printed; that it is not everything makes the command fail.
int statusOf(const Services& services, int printed)
{
    return printed != exitDone || services.isComplete() ? printed : services.incomplete();
}

QByteArray listLine(const KIVClientItem& item)
{
    return tableLine(
            {item.getId(), item.getTypeName(), valueText(item.getValue()), item.getUnitString(), item.getLabel()});
}

} // namespace

int list(Services& services, const Options& options)
{
    int exitStatus = exitDone;
    if (!services.open({}, &exitStatus))
        return exitStatus;
    const QString prefix = options.operands.value(0);
    QByteArray lines;
    QJsonArray array;
    const QVector<KIVClientInterface*> clients = services.clients();
    for (const KIVClientInterface* const client : clients) {
        const QStringList ids = client->getItemIds(prefix);
        for (const QString& id : ids) {
            const KIVClientItem& item = *client->getItem(id);
            if (options.isJson)
                array += itemJson(client->getServiceName(), item);
            else
                lines += listLine(item);
        }
    }
    if (array.isEmpty() && lines.isEmpty())
        return services.unknownItems({prefix});
    return statusOf(services, options.isJson ? printJson(QJsonDocument(array)) : print(lines));
}

int get(Services& services, const Options& options)
{
    int exitStatus = exitDone;
    const QStringList& ids = options.operands;
    const auto isThere = [&services](const QString& id) { return services.item(id); };
    if (!services.open([&] { return std::all_of(ids.cbegin(), ids.cend(), isThere); }, &exitStatus))
        return exitStatus;
    QStringList missing;
    QByteArray lines;
    QJsonArray array;
    for (const QString& id : ids) {
        const KIVClientItem* const item = services.item(id);
        if (!item) {
            missing += id;
            continue;
        }
        lines += tableLine({valueText(item->getValue())});
        array += itemJson(services.owner(id)->getServiceName(), *item);
    }
    if (!missing.isEmpty())
        return services.unknownItems(missing);
    return options.isJson ? printJson(QJsonDocument(array)) : print(lines);
}

int dump(Services& services, const Options& options)
{
    int exitStatus = exitDone;
    const KIVClientInterface* const client = services.openFor(options.operands.constFirst(), &exitStatus);
    return client ? printJson(QJsonDocument(settingsOf(*client))) : exitStatus;
}

int listServices(Services& services, const Options& options)
{
    int exitStatus = exitDone;
    if (!services.open({}, &exitStatus))
        return exitStatus;
    QByteArray lines;
    QJsonArray array;
    const QVector<KIVClientInterface*> clients = services.clients();
    for (const KIVClientInterface* const client : clients) {
        const int items = client->getItemIds().size();
        lines += tableLine({client->getServiceName(), QString::number(items)});
        array += QJsonObject {{QStringLiteral("service"), client->getServiceName()}, {QStringLiteral("items"), items}};
    }
    return statusOf(services, options.isJson ? printJson(QJsonDocument(array)) : print(lines));
}

} // namespace uiutils::kivctl
