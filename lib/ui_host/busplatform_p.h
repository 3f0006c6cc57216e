#pragma once

#include "ui_host/serviceplatform_p.h"

namespace uiutils {

/// Brings up services that live in other processes, see ServicePlatform::start(). The host library loads what does it
/// when it is called; programs that are no pages link it.
std::unique_ptr<ServicePlatform> startBusPlatform(const HostSetup& setup, QStringList* problems);

} // namespace uiutils
