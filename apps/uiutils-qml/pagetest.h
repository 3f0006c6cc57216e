#pragma once

#include <QString>

class QQuickWindow;

namespace kiv::replay {
class Player;
}

namespace uiutils::qmltool {

class SteppedTime;
struct Options;

/// Plays a recording to the moments that the options name, and compares what the page shows there with what is expected
/// of it, or writes that down. Prints what differs. Returns the exit status, having complained.
int testPage(QQuickWindow* window, kiv::replay::Player* player, SteppedTime* time, const Options& options);

} // namespace uiutils::qmltool
