#include "case.h"
#include "plainservice.h"
#include "plainwrapper.h"

#include "local/uidata.h"
#include "local/uidatacontainer.h"

#include <QQmlPropertyMap>

#include <memory>
#include <vector>

namespace bench {

namespace {

QMap<QString, QVariant> attributes(int number)
{
    return {{QStringLiteral("name"), QStringLiteral("item%1").arg(number)},
            {QStringLiteral("label"), QStringLiteral("Item %1").arg(number)},
            {QStringLiteral("type"), UiData::TYPE_INT}, {QStringLiteral("minRange"), 0},
            {QStringLiteral("maxRange"), 100}, {QStringLiteral("mandatory"), true}};
}

Result creation(int runs)
{
    constexpr int items = 2'000;
    PlainService service(QStringLiteral("local"), items);
    const auto ours = [] {
        QObject owner;
        for (int i = 0; i < items; ++i)
            (new UiData(&owner))->setAttributes(attributes(i));
    };
    const auto byHand = [&service] {
        QObject owner;
        for (const PlainServiceItem* item : service.items())
            new PlainWrapper(item, &owner);
    };
    const Timing timing = interleaved(runs, ours, byHand);
    return {QStringLiteral("local: create and end an item / an object written by hand"),
            QStringLiteral("us CPU per item"), timing.ours * 1e3 / items, timing.floor * 1e3 / items, 0};
}

Result oneChange(int runs)
{
    constexpr int items = 1'000;
    constexpr int changes = 1'000;
    UiDataContainer container;
    std::vector<std::unique_ptr<UiData>> members;
    for (int i = 0; i < items; ++i) {
        members.push_back(std::make_unique<UiData>());
        members.back()->setAttributes(attributes(i));
        container.addItem(members.back().get());
    }
    std::vector<char> flags(items, 1);
    volatile bool areOk = false;
    const auto ours = [&] {
        for (int i = 0; i < changes; ++i)
            members.front()->setValue(QVariant(i));
    };
    const auto loop = [&] {
        for (int i = 0; i < changes; ++i) {
            const volatile char* flag = flags.data();
            bool ok = true;
            for (int j = 0; j < items; ++j)
                ok = ok && flag[j] != 0;
            areOk = ok;
        }
    };
    const Timing timing = interleaved(runs, ours, loop);
    return {QStringLiteral("local: one value among 1,000 items / a loop over 1,000 flags"), QStringLiteral("us CPU"),
            timing.ours * 1e3 / changes, timing.floor * 1e3 / changes, 0};
}

Result choices(int runs, int count)
{
    QList<int> values;
    QStringList labels;
    QStringList names;
    for (int i = 0; i < count; ++i) {
        values.append(i);
        labels.append(QStringLiteral("Choice %1").arg(i));
        names.append(QStringLiteral("choice%1").arg(i));
    }
    const auto ours = [&] {
        UiData item;
        item.setType(UiData::TYPE_ENUM);
        item.setEnums(values, labels, names);
    };
    const auto map = [&] {
        QQmlPropertyMap floor;
        for (int i = 0; i < count; ++i)
            floor.insert(names.at(i), values.at(i));
    };
    const Timing timing = interleaved(runs, ours, map);
    return {QStringLiteral("local: fill in %L1 choices / a QQmlPropertyMap of their names").arg(count),
            QStringLiteral("ms CPU"), timing.ours, timing.floor, 0};
}

} // namespace

QVector<Result> localCases(int runs)
{
    return {creation(runs), oneChange(runs), choices(runs, 10), choices(runs, 100), choices(runs, 2'000)};
}

} // namespace bench
