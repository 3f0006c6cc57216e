#include "platformsetup.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>

namespace {

class EmbeddedSetup final : public PlatformSetup
{
public:
    bool report(const QString& service, const QString& id, const QVariant& value) override
    {
        kiv::embedded::EmbeddedService* published = backend.service(service);
        return published && published->setValue(id, value);
    }

    kiv::embedded::EmbeddedBackend backend;
};

} // namespace

std::unique_ptr<PlatformSetup> PlatformSetup::create(const QStringList& serviceFiles)
{
    auto setup = std::make_unique<EmbeddedSetup>();
    for (const QString& file : serviceFiles) {
        if (!setup->backend.loadFile(file))
            return nullptr;
    }
    return setup;
}
