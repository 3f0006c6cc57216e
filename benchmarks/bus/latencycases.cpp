#include "benchmarks/timing.h"
#include "buscases.h"
#include "helper.h"

#include <QCoreApplication>

namespace bench {

namespace {

constexpr int mostItems = 1'000;
constexpr int rounds = 200;

/// The median of the microseconds from a change of so many items to its arrival.
double latency(Helper& sender, Helper& client, int items)
{
    QVector<double> times;
    for (int round = 0; round < rounds; ++round) {
        sender.tell(QStringLiteral("change"), {items});
        times += client.answer().value(0);
    }
    return median(times);
}

#ifdef UIUTILS_HAS_REMOTE_OBJECTS
/// A change of so many items against Qt Remote Objects, from the source to a slot at the replica.
QVector<Result> replicaCases(int runs, Helper& publisher, Helper& client)
{
    Helper host(QStringLiteral("replicahost"));
    Helper watcher(QStringLiteral("replicawatcher"));
    const int meeting = int(QCoreApplication::applicationPid());
    host.ask(QStringLiteral("items"), {mostItems, meeting});
    watcher.ask(QStringLiteral("items"), {mostItems, meeting});
    QVector<Result> results;
    for (const int items : {1, 10, mostItems}) {
        client.ask(QStringLiteral("page"), {mostItems, items - 1, mostItems});
        client.ask(QStringLiteral("watch"), {items - 1});
        watcher.ask(QStringLiteral("watch"), {items - 1});
        const Timing timing = interleavedParts(
                runs, [&] { return latency(publisher, client, items); }, [&] { return latency(host, watcher, items); });
        results.append({QStringLiteral("   of %L1 / Qt Remote Objects, source to slot at the replica").arg(items),
                QStringLiteral("us"), timing.ours, timing.floor, 0});
    }
    return results;
}
#else
QVector<Result> replicaCases(int, Helper&, Helper&)
{
    return {};
}
#endif

} // namespace

QVector<Result> latencyCases(int runs)
{
    Helper publisher(QStringLiteral("publisher"));
    Helper sender(QStringLiteral("qtsender"));
    Helper client(QStringLiteral("client"));
    Helper peer(QStringLiteral("qtclient"));
    publisher.ask(QStringLiteral("items"), {mostItems});
    sender.ask(QStringLiteral("items"), {mostItems});
    peer.ask(QStringLiteral("listen"));

    const auto measure = [&](int items, int first, int step) {
        client.ask(QStringLiteral("page"), {mostItems, first, step});
        client.ask(QStringLiteral("watch"), {items - 1});
        peer.ask(QStringLiteral("watch"), {items - 1});
        return interleavedParts(
                runs, [&] { return latency(publisher, client, items); }, [&] { return latency(sender, peer, items); });
    };
    const QString unit = QStringLiteral("us");
    QVector<Result> results;
    for (const int items : {1, 10, mostItems}) {
        const Timing timing = measure(items, items - 1, mostItems);
        results.append(
                {QStringLiteral("bus: change of %L1, sender to binding / QtDBus, sender to typed slot").arg(items),
                        unit, timing.ours, timing.floor, items < mostItems ? 1.0 : 0.7});
    }
    const Timing timing = measure(mostItems, 0, 1);
    results.append({QStringLiteral("   of %L1 with a binding each / QtDBus, sender to typed slot").arg(mostItems), unit,
            timing.ours, timing.floor, 0});
    return results + replicaCases(runs, publisher, client);
}

} // namespace bench
