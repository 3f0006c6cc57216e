#pragma once

#include <QString>
#include <QStringList>

namespace uiutils::qmltool {

/// What the command line asks for.
struct Options
{
    enum Outcome {
        Show,
        List,
        /// `message` is for standard output, and the program is done.
        Answered,
        /// `message` says what is wrong with the command line.
        Misused,
    };

    Outcome outcome = Show;
    QString message;
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
