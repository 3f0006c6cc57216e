#pragma once

#include "common/commandline.h"
#include "common/screen.h"

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
    /// The code of the language; empty for that of the system.
    QString language;
    /// The picture to take of the page, or empty.
    QString picture;
    /// Whether the page is judged instead of used.
    bool isAudit = false;
    /// Whether the inspector is shown beside the page.
    bool isInspected = false;
    /// The screen to imitate; without a size the page has its own.
    apps::Screen screen;
};

/// Reads the arguments, the program's own name first. Needs a QCoreApplication and no display.
Options readOptions(const QStringList& arguments);

} // namespace uiutils::qmltool
