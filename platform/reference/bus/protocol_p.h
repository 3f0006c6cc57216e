#pragma once

#include <QByteArray>
#include <QLatin1String>
#include <QString>

namespace kiv::bus {

// What both sides of the bus agree on; docs/bus.md tells it to others.

/// The interface of every service, and its errors.
constexpr char serviceInterface[] = "org.uiutils.kiv.Service";
constexpr char errorRejected[] = "org.uiutils.kiv.Error.Rejected";
constexpr char errorInvalidArguments[] = "org.freedesktop.DBus.Error.InvalidArgs";
constexpr char errorUnknownMethod[] = "org.freedesktop.DBus.Error.UnknownMethod";
constexpr char errorUnknownInterface[] = "org.freedesktop.DBus.Error.UnknownInterface";
constexpr char errorUnknownObject[] = "org.freedesktop.DBus.Error.UnknownObject";
constexpr char errorUnknownProperty[] = "org.freedesktop.DBus.Error.UnknownProperty";
constexpr char errorReadOnly[] = "org.freedesktop.DBus.Error.PropertyReadOnly";
constexpr char errorLimits[] = "org.freedesktop.DBus.Error.LimitsExceeded";

constexpr char propertiesInterface[] = "org.freedesktop.DBus.Properties";
constexpr char introspectableInterface[] = "org.freedesktop.DBus.Introspectable";
constexpr char daemonName[] = "org.freedesktop.DBus";
constexpr char daemonPath[] = "/org/freedesktop/DBus";

/// Of the interface. A greater minor one only adds; another major one is another language.
constexpr int majorVersion = 1;
constexpr QLatin1String version("1.1");
/// The first minor version with SendBatch.
constexpr int minorVersionOfBatches = 1;

/// What all bus names of services begin with.
constexpr QLatin1String namePrefix("org.uiutils.kiv.");

/// The bus name and the object path of a service; empty when the name is empty or too long for a bus.
QByteArray busName(const QString& service);
QByteArray objectPath(const QString& service);
/// The service of a bus name, empty when it is none of ours.
QString serviceOfBusName(const QByteArray& name);

/// Field codes are those of ItemField. A field that has no value has this added to its code.
constexpr quint8 withoutValue = 128;
/// Field codes of the service itself, which has the number 0.
constexpr quint8 fieldMounts = 1;

/// Milliseconds of patience with answers that nobody waits for.
constexpr int patienceMs = 25 * 1000;

/// The largest message, and the largest part of a long answer, in bytes.
constexpr int largestMessage = 16 * 1024 * 1024;
constexpr int largestPage = 1024 * 1024;
/// What a subscriber may owe: messages and bytes that it has not acknowledged.
constexpr int mostOwedMessages = 64;
constexpr int mostOwedBytes = 1024 * 1024;
/// A client acknowledges at the latest after so many messages or bytes.
constexpr int acknowledgedMessages = 16;
constexpr int acknowledgedBytes = 256 * 1024;

} // namespace kiv::bus
