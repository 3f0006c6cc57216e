#pragma once

#include "common/commandline.h"

#include <QString>
#include <QStringList>

namespace uiutils::viewer {

/// What the command line asks for.
struct Options : apps::CommandLine
{
    /// The PDF file, on disk, as it was named.
    QString file;
    /// What the window is called: never empty.
    QString title;
    /// Dots per inch of the screen.
    int dotsPerInch = 85;
    /// The whole screen, where no window system shares it out.
    bool isWholeScreen = false;
    /// Input plug-ins with their settings, as in "EvdevTouch:/dev/input/event1".
    QStringList plugins;
};

/// Reads the arguments, the program's own name first. Needs a QCoreApplication and no display.
Options readOptions(const QStringList& arguments);

} // namespace uiutils::viewer
