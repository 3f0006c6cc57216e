#include "buscases.h"
#include "helper.h"
#include "timing.h"

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

} // namespace

QVector<Result> latencyCases(int runs)
{
    Helper publisher(QStringLiteral("publisher"));
    Helper sender(QStringLiteral("qtsender"));
    Helper client(QStringLiteral("client"));
    Helper peer(QStringLiteral("qtclient"));
    publisher.ask(QStringLiteral("items"), {mostItems});
    sender.ask(QStringLiteral("items"), {mostItems});
    client.ask(QStringLiteral("page"), {mostItems, 1});
    peer.ask(QStringLiteral("listen"));

    QVector<Result> results;
    for (const int items : {1, 10, mostItems}) {
        client.ask(QStringLiteral("watch"), {items - 1});
        peer.ask(QStringLiteral("watch"), {items - 1});
        const Timing timing = interleavedParts(
                runs, [&] { return latency(publisher, client, items); }, [&] { return latency(sender, peer, items); });
        results.append(
                {QStringLiteral("bus: change of %L1, sender to binding / QtDBus, sender to typed slot").arg(items),
                        QStringLiteral("us"), timing.ours, timing.floor, items < mostItems ? 1.0 : 0.7});
    }
    return results;
}

} // namespace bench
