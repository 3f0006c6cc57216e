#pragma once

namespace uiutils::viewer {

/// Registers the types that the screen is made of, as UiUtils.Viewer 1.0.
void registerViewerTypes();

} // namespace uiutils::viewer
