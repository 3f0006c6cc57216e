#pragma once

#include "common/commandline.h"

#include <QString>
#include <QStringList>

namespace uiutils::qmltool {

/// The options of the command line.
struct Options : apps::CommandLine
{
    /// The page to show; empty for a list of the items.
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
