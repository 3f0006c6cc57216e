#pragma once

#include "modules/moduleplan.h"

#include <QString>
#include <QStringList>

namespace uiutils::modules {

/// Where modules are written, and under which name pages import them.
struct Place
{
    enum Kind {
        Permanent,
        /// Need not survive a power cut.
        Temporary,
    };

    /// An import path, which is created when it is missing.
    QString folder;
    /// The beginning of the modules' names, for example "Instrument".
    QString importName;
    Kind kind = Permanent;
};

/// Writes the modules into their folders. A file that says already what it should is left as it is. A file that this
/// program has not made is never replaced, and of a module that has one nothing is written. Returns one sentence for
/// each module that could not be written.
QStringList write(const QVector<Module>& modules, const Place& place);

/// Writes a collection of Qt resources with the files of the modules, under the path at which every engine looks for
/// modules. Returns why it could not be written; empty when it was.
QString writeResources(const QVector<Module>& modules, const Place& place, const QString& path);

} // namespace uiutils::modules
