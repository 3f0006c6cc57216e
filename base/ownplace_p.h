#pragma once

#include <QString>

#include <initializer_list>

namespace uiutils {

/// The library or program that holds this code, with its absolute path and without links. Every library that links this
/// static code has a copy of its own, so each gets its own file. Empty when the system does not know it.
QString ownFile();

/// The first of the paths, relative to the folder of the own file, where something is, without links; empty when there
/// is nothing at any.
QString besideOwnFile(std::initializer_list<QString> places);

/// The folder `place`, such as "share/uiutils/services", of the installation that this code belongs to, wherever that
/// was moved: the nearest one below the folders that hold the own file. The build folder has the same layout. Empty
/// when there is none.
QString installedFolder(const QString& place);

} // namespace uiutils
