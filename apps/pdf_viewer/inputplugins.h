#pragma once

#include <QByteArray>
#include <QStringList>

namespace uiutils::viewer {

/// The input plug-ins that are useful on the platforms that Qt will try, as QT_QPA_PLATFORM lists them: none if a
/// window system provides the input, else those with a readable device. Each is a name with settings separated by
/// colons, as in "EvdevTouch:/dev/input/event1:rotate=90"; one without a device finds its own.
QStringList usablePlugins(const QStringList& plugins, const QByteArray& platforms);

} // namespace uiutils::viewer
