#pragma once

namespace uiutils {

/// Registers the types of the live plot, which pages import with `uri`.
void registerPlotTypes(const char* uri);

} // namespace uiutils
