#pragma once

namespace uiutils::viewer {

/// Registers the types of the screen as UiUtils.Viewer 1.0.
void registerViewerTypes();

} // namespace uiutils::viewer
