#pragma once

#include "base/temporaryfolder_p.h"

#include <memory>

namespace uiutils::apps {

/// Chooses where the program draws, before the application object is made: on the display that the
/// environment names, or off screen when there is none. Keep it until the application object is gone.
class DisplaySetup
{
public:
    DisplaySetup();

    /// Whether nobody can see and use the window. Ask once the application object exists: a display that is
    /// named need not answer.
    static bool isOffScreen();

private:
    void ensureRuntimeFolder();

    std::unique_ptr<TemporaryFolder> m_runtimeFolder;
};

} // namespace uiutils::apps
