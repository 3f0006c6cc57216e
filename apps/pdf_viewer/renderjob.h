#pragma once

#include <atomic>
#include <memory>

namespace uiutils::viewer {

/// A requested picture. The requester may cancel it at any time, from any thread.
struct RenderJob
{
    std::atomic<bool> isUnwanted {false};
};

using RenderJobPointer = std::shared_ptr<RenderJob>;

} // namespace uiutils::viewer
