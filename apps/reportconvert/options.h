#pragma once

#include "common/commandline.h"
#include "formats.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace uiutils::convert {

/// The name that stands for standard input among the documents and for standard output after --output.
inline const QLatin1String standardStream("-");

/// What the command line asks for.
struct Options : apps::CommandLine
{
    QStringList documents;
    /// None twice; empty when the suffix of `output` has to tell.
    QVector<const Format*> formats;
    /// As it was given; "." when it was not.
    QString output;
    QStringList serviceFolders;
    PageSettings page;
    bool isStrict = false;
};

/// Reads the arguments, the program's own name first. Needs a QCoreApplication.
Options readOptions(const QStringList& arguments);

} // namespace uiutils::convert
