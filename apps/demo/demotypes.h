#pragma once

namespace uiutils::demo {

/// Registers what the demo's pages use with QML as the module "UiUtils.Demo" 1.0. Call it once.
void registerDemoTypes();

} // namespace uiutils::demo
