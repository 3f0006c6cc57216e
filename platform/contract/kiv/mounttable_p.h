#pragma once

#include <QByteArray>

namespace kiv {

/// Whether a mount table in the form of /proc/self/mountinfo has a drive mounted at `mountPoint`, a path as the system
/// spells it. A place that is mounted only on access (autofs) does not count.
bool listsMount(const QByteArray& table, const QByteArray& mountPoint);

} // namespace kiv
