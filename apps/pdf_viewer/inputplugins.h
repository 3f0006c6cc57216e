#pragma once

#include <QByteArray>
#include <QStringList>

namespace uiutils::viewer {

/// Those of the input plug-ins that do any good on the platforms that Qt is going to try, as QT_QPA_PLATFORM lists
/// them: none where a window system brings the input, else those whose device can be read. Each is a name with settings
/// parted by colons, as in "EvdevTouch:/dev/input/event1:rotate=90"; one that names no device finds its own.
QStringList usablePlugins(const QStringList& plugins, const QByteArray& platforms);

} // namespace uiutils::viewer
