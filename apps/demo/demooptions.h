#pragma once

#include "common/commandline.h"
#include "common/screen.h"

#include <QString>
#include <QStringList>

namespace uiutils::demo {

/// The demo's options, from the command line and the environment.
struct DemoOptions : apps::CommandLine
{
    /// Absolute folder below which the instrument's paths lie.
    QString root;
    QStringList serviceFolders;
    /// Samples of each quantity; 0 for the number in the settings.
    int samples = 0;
    /// The screen of the instrument.
    apps::Screen screen {{1024, 600}, 170};
    bool isTour = false;
    /// Watch what other processes do.
    bool isFollower = false;
};

/// Reads the arguments, the program's own name first. Needs a QCoreApplication and no display.
DemoOptions readOptions(const QStringList& arguments);

} // namespace uiutils::demo
