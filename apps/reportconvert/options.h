#pragma once

#include "common/commandline.h"
#include "formats.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace uiutils::convert {

/// The name of standard input among the documents and of standard output after --output.
inline const QLatin1String standardStream("-");

/// The options of the command line.
struct Options : apps::CommandLine
{
    QStringList documents;
    /// No format twice; empty when the suffix of `output` decides.
    QVector<const Format*> formats;
    /// As given; "." without the option.
    QString output;
    bool isPlaceGiven = false;
    /// How many processes convert several documents at once.
    int jobs = 1;
    QStringList serviceFolders;
    PageSettings page;
    TableSettings tables;
    bool isStrict = false;
    bool isPreview = false;

    /// Whether pages are shown on the screen.
    bool opensWindow() const { return isPreview && !isPlaceGiven; }
};

/// Reads the arguments, the program's own name first. Needs a QCoreApplication.
Options readOptions(const QStringList& arguments);

} // namespace uiutils::convert
