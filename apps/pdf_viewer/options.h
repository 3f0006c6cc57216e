#pragma once

#include "common/commandline.h"

#include <QString>
#include <QStringList>

namespace uiutils::viewer {

/// The options of the command line.
struct Options : apps::CommandLine
{
    /// The path of the PDF file on disk, as given.
    QString file;
    /// The title of the window: never empty.
    QString title;
    /// The code of the language; empty for that of the environment.
    QString language;
    /// Dots per inch of the screen.
    int dotsPerInch = 85;
    /// Full screen, unless a window system arranges windows.
    bool isFullScreen = false;
    /// Input plug-ins with their settings, as in "EvdevTouch:/dev/input/event1".
    QStringList plugins;
};

/// Reads the arguments, the program's own name first. Needs a QCoreApplication and no display.
Options readOptions(const QStringList& arguments);

} // namespace uiutils::viewer
