#include "localservices_p.h"

#include <embedded/embeddedservice.h>

#include <QPointer>

#include <map>
#include <utility>

namespace kiv::bus {

namespace {

using Key = std::pair<QByteArray, QByteArray>;

std::map<Key, QPointer<embedded::EmbeddedService>>& services()
{
    static thread_local std::map<Key, QPointer<embedded::EmbeddedService>> all;
    return all;
}

} // namespace

void addLocalService(const QByteArray& owner, const QByteArray& path, embedded::EmbeddedService* service)
{
    services()[{owner, path}] = service;
}

void removeLocalService(const embedded::EmbeddedService* service)
{
    auto& all = services();
    for (auto it = all.begin(); it != all.end();)
        it = !it->second || it->second == service ? all.erase(it) : std::next(it);
}

embedded::EmbeddedService* localService(const QByteArray& owner, const QByteArray& path)
{
    const auto& all = services();
    const auto it = all.find({owner, path});
    return it == all.end() ? nullptr : it->second.data();
}

} // namespace kiv::bus
