#include "base/ownlibrary_p.h"
#include "ui_host/busplatform_p.h"

namespace uiutils {

std::unique_ptr<ServicePlatform> startBusPlatform(const HostSetup& setup, QStringList* problems)
{
    using Start = ServicePlatform* (*)(const HostSetup&, QStringList*);
    QString error;
    const auto start
            = reinterpret_cast<Start>(ownLibraryFunction("uiutils", UIUTILS_BUS_LIBRARY, "uiutilsBusPlatform", &error));
    if (start)
        return std::unique_ptr<ServicePlatform>(start(setup, problems));
    *problems += error;
    return nullptr;
}

} // namespace uiutils
