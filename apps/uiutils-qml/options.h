#pragma once

#include "common/commandline.h"

#include <QString>
#include <QStringList>

namespace uiutils::qmltool {

/// What the command line asks for.
struct Options : apps::CommandLine
{
    /// The page to show; empty when the items are to be listed.
    QString page;
    QStringList serviceFolders;
    QStringList importFolders;
    /// Absolute folder below which the instrument's paths lie.
    QString root;
    /// The picture to take of the page, or empty.
    QString picture;
};

/// Reads the arguments, the program's own name first. Needs a QCoreApplication and no display.
Options readOptions(const QStringList& arguments);

} // namespace uiutils::qmltool
