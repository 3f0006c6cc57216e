#pragma once

#include <QByteArray>

namespace kiv {

/// Whether a table of mounts in the form of /proc/self/mountinfo has a drive mounted at `mountPoint`, a path as the
/// system spells it. A place where one is mounted only when somebody looks (autofs) is none yet.
bool listsMount(const QByteArray& table, const QByteArray& mountPoint);

} // namespace kiv
