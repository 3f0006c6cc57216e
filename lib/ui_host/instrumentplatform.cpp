// The services of an instrument's own platform; the reference platform's are in referenceplatform.cpp.

#include "ui_host/namedservices_p.h"
#include "ui_host/serviceplatform_p.h"

namespace uiutils {

HostSetup ServicePlatform::completed(HostSetup setup)
{
    return setup;
}

std::unique_ptr<ServicePlatform> ServicePlatform::start(const HostSetup& setup, QStringList* problems)
{
    auto platform = std::make_unique<NamedServices>();
    return platform->begin(setup.services, problems) ? std::move(platform) : nullptr;
}

} // namespace uiutils
