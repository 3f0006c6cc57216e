#pragma once

#include <QByteArray>

namespace kiv::embedded {
class EmbeddedService;
}

namespace kiv::bus {

// The services that this thread's process publishes itself. A client that called one of them over the bus would wait
// for the very thread that it blocks.

void addLocalService(const QByteArray& owner, const QByteArray& path, embedded::EmbeddedService* service);
void removeLocalService(const embedded::EmbeddedService* service);
/// Null for a service of another process or another thread.
embedded::EmbeddedService* localService(const QByteArray& owner, const QByteArray& path);

} // namespace kiv::bus
