#pragma once

#include <QString>
#include <QStringList>

namespace uiutils {

/// The folder that stands for the instrument's disk unless the user names one: UIUTILS_ROOT, else a folder of the
/// program in the user's state folder.
QString defaultRoot(const QString& program);

/// Makes `root`, from a command line or the environment, the folder that stands for the instrument's disk; an empty one
/// changes nothing. Returns false, with the reason in `problems`, when its name is not written in the encoding of file
/// names: it would become the name of another folder.
bool useRoot(const QString& root, QStringList* problems);

} // namespace uiutils
