#pragma once

namespace uiutils::viewer {

/// Holds this process to memory that the unit can spare, and has it leave no core: a file that makes it swell or go
/// down does no harm to others.
void limitProcess();

} // namespace uiutils::viewer
