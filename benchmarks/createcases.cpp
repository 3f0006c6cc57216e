#include "bindingcases.h"
#include "childprocess.h"
#include "memory.h"
#include "plainservice.h"
#include "plainwrapper.h"

#include "service/manifest.h"

#include <QMetaProperty>
#include <QQmlPropertyMap>

#include <memory>

namespace bench {

namespace {

const QString serviceName = QStringLiteral("bench");

/// What is made of the items of a service. Whatever `make` returns is deleted behind the measurement.
using Maker = std::function<QObject*(PlainService& service)>;

QObject* makeWrappers(PlainService& service)
{
    return new Manifest(&service, QString(), serviceName);
}

QObject* makeByHand(PlainService& service)
{
    auto* owner = new QObject;
    for (const PlainServiceItem* item : service.items())
        new PlainWrapper(item, owner);
    return owner;
}

/// The property names of KivData but the last, "validator", which nobody would enter in a map.
QStringList mapKeys()
{
    const QMetaObject& layout = PlainWrapper::staticMetaObject;
    QStringList keys;
    for (int i = layout.propertyOffset(); i < layout.propertyCount() - 1; ++i)
        keys += QString::fromLatin1(layout.property(i).name());
    return keys;
}

QObject* makeMaps(PlainService& service)
{
    static const QStringList keys = mapKeys();
    auto* owner = new QObject;
    for (const PlainServiceItem* item : service.items()) {
        auto* map = new QQmlPropertyMap(owner);
        for (const QString& key : keys)
            map->insert(key, item->getValue());
    }
    return owner;
}

/// CPU milliseconds of making, in a process whose registry is empty and whose items have no listeners yet.
double makingTime(int items, const Maker& make)
{
    return inChild([&] {
        // What only the first item of a process costs, such as finding functions in the libraries, is over
        // before.
        PlainService first(serviceName, 3);
        make(first);
        PlainService service(serviceName, items);
        return measured([&] { make(service); });
    });
}

/// The same of many services that have the items between them, each in a process of its own.
double makingTimeInParts(int items, int part)
{
    double time = 0;
    for (int done = 0; done < items; done += part)
        time += makingTime(part, makeWrappers);
    return time;
}

double makingMemory(int items, const Maker& make)
{
    std::unique_ptr<PlainService> service;
    return double(heapGrowth(
                   [&] { service = std::make_unique<PlainService>(serviceName, items); }, [&] { make(*service); }))
            / 1e6;
}

Timing makingTimes(int runs, int items, const Maker& make)
{
    return interleavedParts(
            runs, [&] { return makingTime(items, makeWrappers); }, [&] { return makingTime(items, make); });
}

} // namespace

QVector<Result> createCases(int runs)
{
    QVector<Result> results;
    const QString unit = QStringLiteral("us CPU per item");
    for (const int items : {1'000, 5'000, 20'000}) {
        const Timing timing = makingTimes(runs, items, makeByHand);
        results.append({QStringLiteral("binding: create %L1 items / objects written by hand").arg(items), unit,
                timing.ours * 1e3 / items, timing.floor * 1e3 / items, 1.5});
        results.append({QStringLiteral("   heap memory of it / of the objects written by hand"), QStringLiteral("MB"),
                makingMemory(items, makeWrappers), makingMemory(items, makeByHand), 1.25});
    }
    constexpr int most = 20'000;
    const Timing growth = interleavedParts(
            runs, [&] { return makingTime(most, makeWrappers); }, [&] { return makingTimeInParts(most, 1'000); });
    results.append({QStringLiteral("binding: create one of 20,000 items / one of 1,000"), unit,
            growth.ours * 1e3 / most, growth.floor * 1e3 / most, 1.5});

    constexpr int peers = 1'000;
    const Timing maps = makingTimes(runs, peers, makeMaps);
    results.append({QStringLiteral("binding: create %L1 items / QQmlPropertyMap of 26 keys").arg(peers), unit,
            maps.ours * 1e3 / peers, maps.floor * 1e3 / peers, 0});
    results.append({QStringLiteral("   heap memory of it / of the property maps"), QStringLiteral("MB"),
            makingMemory(peers, makeWrappers), makingMemory(peers, makeMaps), 0});
#ifdef BENCH_REMOTE_OBJECTS
    results.append({QStringLiteral("binding: create %L1 items / dynamic replicas of Qt Remote Objects").arg(peers),
            unit, maps.ours * 1e3 / peers, replicaMicroseconds(runs, peers), 0});
#endif
    return results;
}

} // namespace bench
