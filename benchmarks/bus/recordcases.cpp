#include "benchmarks/timing.h"
#include "buscases.h"
#include "helper.h"
#include "workload.h"

namespace bench {

namespace {

constexpr int bindingStep = 25;

/// CPU milliseconds of each client while all changes come in.
QVector<double> loadTimes(Helper& publisher, const QVector<Helper*>& clients)
{
    QVector<double> times;
    for (Helper* client : clients)
        times += client->ask(QStringLiteral("cpu")).value(0);
    publisher.ask(QStringLiteral("load"));
    for (int i = 0; i < clients.size(); ++i) {
        const QVector<double> after = clients.at(i)->ask(QStringLiteral("settle"), {loadChanges});
        if (after.value(1) != 1.0)
            qFatal("Not all of the last values are right.");
        times[i] = after.value(0) - times.at(i);
    }
    return times;
}

} // namespace

QVector<Result> recordCases(int runs)
{
    Helper publisher(QStringLiteral("publisher"));
    Helper watching(QStringLiteral("client"));
    Helper plain(QStringLiteral("client"));
    Helper compressed(QStringLiteral("client"));
    const QVector<Helper*> clients {&watching, &plain, &compressed};
    publisher.ask(QStringLiteral("items"), {itemCount});
    for (Helper* client : clients)
        client->ask(QStringLiteral("page"), {itemCount, 0, bindingStep});
    loadTimes(publisher, clients);
    plain.ask(QStringLiteral("record"), {0});
    compressed.ask(QStringLiteral("record"), {1});

    QVector<double> watchingTimes;
    QVector<double> plainTimes;
    QVector<double> compressedTimes;
    for (int run = 0; run < runs; ++run) {
        const QVector<double> times = loadTimes(publisher, clients);
        watchingTimes += times.at(0);
        plainTimes += times.at(1) - times.at(0);
        compressedTimes += times.at(2) - times.at(0);
    }
    for (Helper* client : {&plain, &compressed}) {
        if (client->ask(QStringLiteral("recorded"), {runs}).value(0) != 1.0)
            qFatal("The recording is not complete.");
    }
    const double toMicroseconds = 1e3 / loadChanges;
    const double floor = median(watchingTimes) * toMicroseconds;
    const QString unit = QStringLiteral("us CPU per change");
    return {{QStringLiteral("bus: recording 20,000 changes a second, what it adds / a client that shows them"), unit,
                    median(plainTimes) * toMicroseconds, floor, 0.5},
            {QStringLiteral("   the same, compressed"), unit, median(compressedTimes) * toMicroseconds, floor, 0}};
}

} // namespace bench
