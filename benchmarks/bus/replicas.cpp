#include "replicas.h"

#include "commands.h"
#include "roles.h"
#include "workload.h"

#include <QCoreApplication>
#include <QRemoteObjectDynamicReplica>
#include <QRemoteObjectHost>
#include <QRemoteObjectNode>
#include <QUrl>

namespace bench {

namespace {

constexpr int patience = 60 * 1000;

QUrl place(int meeting)
{
    return QUrl(QStringLiteral("local:uiutils-bench-bus-%1").arg(meeting));
}

QString replicaName(int item)
{
    return QStringLiteral("item%1").arg(item);
}

} // namespace

void ReplicatedItem::setValue(double value)
{
    m_value = value;
    Q_EMIT valueChanged(value);
}

ReplicaHost::ReplicaHost() = default;
ReplicaHost::~ReplicaHost() = default;

void ReplicaHost::offer(int items, int meeting)
{
    m_host = std::make_unique<QRemoteObjectHost>(place(meeting));
    for (int item = 0; item < items; ++item) {
        m_items.push_back(std::make_unique<ReplicatedItem>());
        m_host->enableRemoting(m_items.back().get(), replicaName(item));
    }
}

void ReplicaHost::change(int items)
{
    const double time = now();
    ++m_changes;
    for (int item = 0; item < items - 1; ++item)
        m_items.at(size_t(item))->setValue(m_changes);
    m_items.at(size_t(items) - 1)->setValue(time);
}

ReplicaWatcher::ReplicaWatcher() = default;
ReplicaWatcher::~ReplicaWatcher() = default;

void ReplicaWatcher::replicate(int items, int meeting)
{
    m_node = std::make_unique<QRemoteObjectNode>();
    m_node->connectToNode(place(meeting));
    for (int item = 0; item < items; ++item)
        m_replicas.emplace_back(m_node->acquireDynamic(replicaName(item)));
    for (const auto& replica : m_replicas) {
        if (!replica->waitForSource(patience))
            qFatal("A replica does not come.");
    }
    answer({});
}

void ReplicaWatcher::watch(int item)
{
    disconnect(m_watched);
    const QObject* replica = m_replicas.at(size_t(item)).get();
    m_watched = connect(replica, SIGNAL(valueChanged(double)), this, SLOT(onChanged(double)));
    answer({});
}

void ReplicaWatcher::onChanged(double sent) const
{
    answer({(now() - sent) * 1e6});
}

int replicaHostRole()
{
    ReplicaHost host;
    const Commands commands({
            {QStringLiteral("items"),
                    [&host](const QVector<int>& arguments) {
                        host.offer(arguments.at(0), arguments.at(1));
                        answer({});
                    }},
            {QStringLiteral("change"), [&host](const QVector<int>& arguments) { host.change(arguments.at(0)); }},
    });
    return QCoreApplication::exec();
}

int replicaWatcherRole()
{
    ReplicaWatcher watcher;
    const Commands commands({
            {QStringLiteral("items"),
                    [&watcher](const QVector<int>& arguments) { watcher.replicate(arguments.at(0), arguments.at(1)); }},
            {QStringLiteral("watch"), [&watcher](const QVector<int>& arguments) { watcher.watch(arguments.at(0)); }},
    });
    return QCoreApplication::exec();
}

} // namespace bench
