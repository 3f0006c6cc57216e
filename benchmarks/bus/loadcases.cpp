#include "benchmarks/timing.h"
#include "buscases.h"
#include "helper.h"
#include "workload.h"

namespace bench {

namespace {

constexpr int bindingStep = 25;

/// CPU milliseconds of the client while all changes come in.
double loadTime(Helper& sender, Helper& client, const QVector<int>& how)
{
    const double before = client.ask(QStringLiteral("cpu")).value(0);
    sender.ask(QStringLiteral("load"), how);
    const QVector<double> after = client.ask(QStringLiteral("settle"), {loadChanges});
    if (after.value(1) != 1.0)
        qFatal("Not all of the last values are right.");
    return after.value(0) - before;
}

} // namespace

QVector<Result> loadCases(int runs)
{
    Helper publisher(QStringLiteral("publisher"));
    Helper sender(QStringLiteral("qtsender"));
    Helper client(QStringLiteral("client"));
    Helper peer(QStringLiteral("qtclient"));
    publisher.ask(QStringLiteral("items"), {itemCount});
    sender.ask(QStringLiteral("items"), {itemCount});
    client.ask(QStringLiteral("page"), {itemCount, 0, bindingStep});
    peer.ask(QStringLiteral("page"), {itemCount, 0, bindingStep});

    QVector<double> ours;
    QVector<double> maps;
    QVector<double> single;
    for (int run = -1; run < runs; ++run) {
        const double times[] {
                loadTime(publisher, client, {}), loadTime(sender, peer, {0}), loadTime(sender, peer, {1})};
        if (run < 0)
            continue;
        ours += times[0];
        maps += times[1];
        single += times[2];
    }
    const double toMicroseconds = 1e3 / loadChanges;
    const QString unit = QStringLiteral("us CPU per change");
    return {{QStringLiteral(
                     "bus: 20,000 changes a second, client / typed QtDBus slot that writes objects written by hand"),
                    unit, median(ours) * toMicroseconds, median(maps) * toMicroseconds, 1.2},
            {QStringLiteral("bus: 20,000 changes a second, client / the same in a QtDBus message each"), unit,
                    median(ours) * toMicroseconds, median(single) * toMicroseconds, 0.6}};
}

} // namespace bench
