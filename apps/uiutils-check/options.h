#pragma once

#include "common/commandline.h"

#include <QStringList>

namespace uiutils::checker {

/// What the command line asks for.
struct Options : apps::CommandLine
{
    /// Service files, and folders of them.
    QStringList services;
    QStringList pages;
    /// Where modules are that the pages import.
    QStringList importFolders;
    bool asJson = false;
    bool isQuiet = false;
    /// Warnings count like errors.
    bool isStrict = false;
};

/// Reads the arguments, the program's own name first.
Options readOptions(const QStringList& arguments);

} // namespace uiutils::checker
