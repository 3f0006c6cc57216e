#pragma once

#include "message_p.h"

#include <QStringList>

namespace kiv::embedded {
class EmbeddedService;
}

namespace kiv::bus {

QStringList propertyNames();

/// Appends a property of a service, one of propertyNames(), as a variant.
void writeProperty(Writer& writer, const embedded::EmbeddedService& service, const QString& name);

/// Clean paths at which the service has drives mounted, in ascending order.
QStringList mountsOf(const embedded::EmbeddedService& service);

/// The description of the interface, in the form that Introspect answers.
QString interfaceText();

} // namespace kiv::bus
