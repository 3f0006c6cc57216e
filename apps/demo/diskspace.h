#pragma once

namespace uiutils::demo {

/// Lets all file systems say to this process that they have no free space, or what they really have.
void showNoSpace(bool isShown);

} // namespace uiutils::demo
