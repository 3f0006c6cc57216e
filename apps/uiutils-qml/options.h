#pragma once

#include "common/commandline.h"
#include "common/screen.h"

#include <QString>
#include <QStringList>
#include <QVector>

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
    /// Whether the page is checked: its files, then what it says while it is shown off screen.
    bool isCheck = false;
    /// Whether findings are printed for programs.
    bool isJson = false;
    /// Whether the inspector is shown beside the page.
    bool isInspected = false;
    /// The screen to imitate; without a size the page has its own.
    apps::Screen screen;

    /// The recording whose services are shown; empty for services from files.
    QString recording;
    /// The moment of it with which to begin.
    qint64 fromMs = 0;
    double speed = 1;
    bool isLooped = false;
    /// Moments at which the page is compared with what is expected of it, in ascending order; empty for a page that is
    /// used.
    QVector<qint64> moments;
    /// The folder of what is expected.
    QString expectations;
    /// Whether what the page shows is written down as expected.
    bool isUpdate = false;
    /// Whether pictures are compared besides texts.
    bool hasPictures = false;
};

/// Reads the arguments, the program's own name first. Needs a QCoreApplication and no display.
Options readOptions(const QStringList& arguments);

} // namespace uiutils::qmltool
