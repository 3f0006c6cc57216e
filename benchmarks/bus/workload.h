#pragma once

#include <QByteArray>
#include <QMap>
#include <QMetaType>
#include <QString>
#include <QVariant>
#include <QVector>

namespace bench {

// The items that all processes know, and what becomes of them.

constexpr int itemCount = 5'000;
constexpr int changesPerTurn = 200;
constexpr int turnMs = 10;
/// Of one load. All items change equally often.
constexpr int loadChanges = 40'000;

/// Items by their ids as QtDBus carries them, a{sa{sv}}.
using ItemMaps = QMap<QString, QVariantMap>;

QString serviceName();
/// In turn a double, an int and a text.
QString itemId(int item);
/// What QML calls it.
QString itemName(int item);
/// The value that a change, counted from 0, gives an item.
QVariant valueOf(int item, int change);
/// The value that an item has when so many changes have gone over all items in turn.
QVariant lastValue(int item, int changes);

/// The service with the first `count` items as a service file.
QByteArray serviceFile(int count);
/// The same items, with the fields that a service says of them.
ItemMaps itemMaps(int count);

/// Seconds of a clock that all processes share.
double now();

// Where the peers meet on the bus.
constexpr char peerName[] = "org.uiutils.bench";
constexpr char peerPath[] = "/bench";
constexpr char peerInterface[] = "org.uiutils.bench.Peer";
void registerTypes();

} // namespace bench

Q_DECLARE_METATYPE(bench::ItemMaps)
