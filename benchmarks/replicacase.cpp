#include "bindingcases.h"

#include "replicasource.h"

#include <QCoreApplication>
#include <QRemoteObjectDynamicReplica>
#include <QRemoteObjectHost>
#include <QRemoteObjectNode>

#include <limits>
#include <memory>
#include <vector>

namespace bench {

namespace {

QString replicaName(int number)
{
    return QStringLiteral("item%1").arg(number);
}

/// Runs the event loop until the replicas are ready; false when one does not get so far.
bool waitUntilReady(const std::vector<std::unique_ptr<QRemoteObjectDynamicReplica>>& replicas)
{
    constexpr int patience = 60'000;
    for (const auto& replica : replicas) {
        if (!replica->waitForSource(patience))
            return false;
    }
    return true;
}

} // namespace

double replicaMicroseconds(int runs, int items)
{
    const QUrl url(QStringLiteral("local:uiutils-bench-%1").arg(QCoreApplication::applicationPid()));
    QRemoteObjectHost host(url);
    std::vector<std::unique_ptr<ReplicaSource>> sources;
    for (int i = 0; i < items; ++i) {
        sources.push_back(std::make_unique<ReplicaSource>());
        host.enableRemoting(sources.back().get(), replicaName(i));
    }

    bool isReady = true;
    const auto replicate = [&] {
        QRemoteObjectNode node;
        node.connectToNode(url);
        std::vector<std::unique_ptr<QRemoteObjectDynamicReplica>> replicas;
        const double time = measured([&] {
            for (int i = 0; i < items; ++i)
                replicas.emplace_back(node.acquireDynamic(replicaName(i)));
            isReady = isReady && waitUntilReady(replicas);
        });
        return time;
    };
    const Timing timing = interleavedParts(runs, replicate, [] { return 0.0; });
    return isReady ? timing.ours * 1e3 / items : std::numeric_limits<double>::quiet_NaN();
}

} // namespace bench
