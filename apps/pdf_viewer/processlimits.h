#pragma once

namespace uiutils::viewer {

/// Limits this process to memory that the unit can spare, and disables core dumps: a file that makes it grow or crash
/// does no harm to others.
void limitProcess();

} // namespace uiutils::viewer
