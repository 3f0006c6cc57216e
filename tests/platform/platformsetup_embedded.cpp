#include "platformsetup_embedded.h"

std::unique_ptr<PlatformSetup> PlatformSetup::create(const QStringList& serviceFiles)
{
    return EmbeddedSetup::createEmbedded(serviceFiles);
}
