#pragma once

#include <atomic>
#include <memory>

namespace uiutils::viewer {

/// A picture that was asked for. Whoever asked may lose interest at any time, from any thread.
struct RenderJob
{
    std::atomic<bool> isUnwanted {false};
};

using RenderJobPointer = std::shared_ptr<RenderJob>;

} // namespace uiutils::viewer
