#pragma once

namespace uiutils::demo {

/// Registers the types of the demo's pages with QML as the module "UiUtils.Demo" 1.0. Call it once.
void registerDemoTypes();

} // namespace uiutils::demo
