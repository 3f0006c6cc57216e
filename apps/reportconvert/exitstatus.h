#pragma once

namespace uiutils::convert {

/// What the program ends with. A signal that cut it short gives 128 and the signal's number, as shells have
/// it.
enum ExitStatus { ExitDone = 0, ExitFailed = 1, ExitMisused = 2, ExitSignalled = 128 };

} // namespace uiutils::convert
