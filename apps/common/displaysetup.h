#pragma once

#include "base/temporaryfolder_p.h"

#include <memory>

namespace uiutils::apps {

/// Chooses where the program draws, before the application object is created: on the display that the environment
/// names, or off screen if there is none. Keep it until the application object is destroyed.
class DisplaySetup
{
public:
    DisplaySetup();

    /// Whether nobody can see and use the window. Call it when the application object exists: a display that is named
    /// may not answer.
    static bool isOffScreen();

    /// Lets Qt Virtual Keyboard, where it is installed, write into the fields of a window that somebody sees, unless
    /// QT_IM_MODULE names another input method. Call it before the application object exists.
    static void offerScreenKeyboard();

private:
    void ensureRuntimeFolder();

    std::unique_ptr<TemporaryFolder> m_runtimeFolder;
};

} // namespace uiutils::apps
