#pragma once

#include "common/commandline.h"

#include <QString>
#include <QStringList>

namespace uiutils::describe {

/// What the command line asks for.
struct Options : apps::CommandLine
{
    /// Services of other processes, in place of service files.
    bool isBus = false;
    /// Folders of service files, and single ones.
    QStringList services;
    /// Full names or tags of the services to describe; empty for all.
    QStringList wanted;
    /// Absolute.
    QString output;
    QString importName;
    /// Catalogues of translators to bring up to what the services say; empty for modules.
    QStringList catalogues;
    /// The collection of resources to write, or empty.
    QString resources;
};

/// Reads the arguments, the program's own name first. Needs a QCoreApplication.
Options readOptions(const QStringList& arguments);

} // namespace uiutils::describe
