#pragma once

#include "common/commandline.h"
#include "common/screen.h"

#include <QString>
#include <QStringList>

namespace uiutils::inspectortool {

/// The options of the command line.
struct Options : apps::CommandLine
{
    QStringList serviceFolders;
    /// Whether the services live in this process whatever the environment says.
    bool isEmbedded = false;
    /// Absolute folder below which the instrument's paths lie.
    QString root;
    /// The code of the language; empty for that of the system.
    QString language;
    /// The screen to imitate; without a size the panel has its own.
    apps::Screen screen;
    /// One of ControlsStyle.themes.
    QString theme;
};

/// Reads the arguments, the program's own name first. Needs a QCoreApplication and no display.
Options readOptions(const QStringList& arguments);

} // namespace uiutils::inspectortool
