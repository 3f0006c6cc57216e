#include "workload.h"

#include <QDBusMetaType>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <ctime>
#include <iterator>

namespace bench {

namespace {

struct Kind
{
    const char* type;
    const char* name;
};

constexpr Kind kinds[] {{"double", "double"}, {"int", "int"}, {"std::string", "string"}};

const Kind& kindOf(int item)
{
    return kinds[item % int(std::size(kinds))];
}

QVariantMap fieldsOf(int item)
{
    QVariantMap fields {{QStringLiteral("type"), QString::fromLatin1(kindOf(item).type)},
            {QStringLiteral("value"), valueOf(item, 0)},
            {QStringLiteral("label"), QStringLiteral("Reading %1").arg(item)},
            {QStringLiteral("unit"), QString::fromLatin1("dB")}, {QStringLiteral("minimum"), 0},
            {QStringLiteral("maximum"), 1'000'000}};
    if (kindOf(item).type == kinds[0].type) {
        fields.insert(QStringLiteral("precision"), 2);
        fields.insert(QStringLiteral("minimum"), 0.5);
    }
    return fields;
}

} // namespace

QString serviceName()
{
    return QStringLiteral("bench");
}

QString itemId(int item)
{
    return QStringLiteral(":config:bench:%1_%2:").arg(QString::fromLatin1(kindOf(item).name)).arg(item);
}

QString itemName(int item)
{
    return QStringLiteral("bench_cfg_%1_%2").arg(QString::fromLatin1(kindOf(item).name)).arg(item);
}

QVariant valueOf(int item, int change)
{
    const QVariant values[] {change + 0.5, change, QStringLiteral("text %1").arg(change)};
    return values[item % int(std::size(kinds))];
}

QVariant lastValue(int item, int changes)
{
    return valueOf(item, changes - itemCount + item);
}

QByteArray serviceFile(int count)
{
    QJsonArray items;
    for (int item = 0; item < count; ++item) {
        QJsonObject described = QJsonObject::fromVariantMap(fieldsOf(item));
        described.insert(QStringLiteral("id"), itemId(item));
        items += described;
    }
    return QJsonDocument(QJsonObject {{QStringLiteral("service"), serviceName()}, {QStringLiteral("items"), items}})
            .toJson();
}

ItemMaps itemMaps(int count)
{
    ItemMaps items;
    for (int item = 0; item < count; ++item)
        items.insert(itemId(item), fieldsOf(item));
    return items;
}

double now()
{
    timespec time {};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

void registerTypes()
{
    qRegisterMetaType<ItemMaps>("bench::ItemMaps");
    qDBusRegisterMetaType<ItemMaps>();
}

} // namespace bench
