#pragma once

#include "connection_p.h"

#include <QSet>
#include <QStringList>
#include <QVariant>

namespace kiv::embedded {
class EmbeddedService;
}

namespace kiv::bus {

// Of a service: answers to calls of the interfaces Properties and Introspectable.

void answerGet(Connection& connection, const embedded::EmbeddedService& service, const Message& call);
void answerGetAll(Connection& connection, const embedded::EmbeddedService& service, const Message& call);
void answerSet(Connection& connection, const Message& call);
void answerIntrospect(Connection& connection, const Message& call);

/// Clean paths at which the service has drives mounted, in ascending order.
QStringList mountsOf(const embedded::EmbeddedService& service);

// Of a client.

/// The answer of GetAll; empty for an error.
QVariantMap readProperties(const Message& reply);
QSet<QString> cleanPaths(const QVariant& paths);

} // namespace kiv::bus
