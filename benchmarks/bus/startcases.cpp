#include "benchmarks/timing.h"
#include "buscases.h"
#include "helper.h"
#include "workload.h"

namespace bench {

QVector<Result> startCases(int runs)
{
    Helper publisher(QStringLiteral("publisher"));
    Helper sender(QStringLiteral("qtsender"));
    publisher.ask(QStringLiteral("items"), {itemCount});
    sender.ask(QStringLiteral("items"), {itemCount});

    QVector<QVector<double>> ours(3);
    QVector<QVector<double>> peers(2);
    for (int run = -1; run < runs; ++run) {
        const QVector<double> times = Helper(QStringLiteral("client")).ask(QStringLiteral("start"));
        const QVector<double> peerTimes = Helper(QStringLiteral("qtclient")).ask(QStringLiteral("start"));
        for (int i = 0; run >= 0 && i < ours.size(); ++i)
            ours[i] += times.value(i);
        for (int i = 0; run >= 0 && i < peers.size(); ++i)
            peers[i] += peerTimes.value(i);
    }
    const double cpu = median(ours.at(1));
    return {{QStringLiteral("bus: start with %L1 items / one QtDBus call that answers with them as maps")
                            .arg(itemCount),
                    QStringLiteral("ms"), median(ours.at(0)), median(peers.at(0)), 1.5},
            {QStringLiteral("   CPU time of it, client / QtDBus client"), QStringLiteral("ms CPU"), cpu,
                    median(peers.at(1)), 1.5},
            {QStringLiteral("   manifest of them / CPU time of the start"), QStringLiteral("ms CPU"),
                    median(ours.at(2)), cpu, 0}};
}

QVector<Result> memoryCases(int)
{
    Helper publisher(QStringLiteral("publisher"));
    publisher.ask(QStringLiteral("items"), {itemCount});
    const double ours = Helper(QStringLiteral("client")).ask(QStringLiteral("memory")).value(0);
    const double embedded = Helper(QStringLiteral("embedded")).ask(QStringLiteral("memory")).value(0);
    return {{QStringLiteral("bus: heap memory of a client's item / of an embedded one"), QStringLiteral("bytes"),
            ours / itemCount, embedded / itemCount, 1.5}};
}

} // namespace bench
