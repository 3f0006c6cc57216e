#include "workspace.h"

#include "base/paths_p.h"
#include "base/temporaries_p.h"
#include "texts.h"

#include <QDir>
#include <QFile>

#include <cerrno>

namespace uiutils::convert {

/// Not QDir::tempPath(), which is "/" when TMPDIR names a folder that does not exist.
QString Workspace::place()
{
    const QString named = qEnvironmentVariable("TMPDIR");
    return named.isEmpty() ? QStringLiteral("/tmp") : named;
}

bool Workspace::prepare(QString* error)
{
    *error = rootProblem();
    if (!error->isEmpty())
        return false;
    removeStaleTemporaries(place());
    m_folder = std::make_unique<TemporaryFolder>(place());
    if (path().isEmpty()) {
        *error = Texts::tr("No temporary folder can be created in %1: %2. Name another place with TMPDIR.")
                         .arg(place(), qt_error_string(errno));
        return false;
    }
    // Otherwise the toolkit would create a folder in /tmp that stays.
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(path()));
    if (!qEnvironmentVariableIsEmpty("UIUTILS_ROOT") || makeRoot())
        return true;
    *error = Texts::tr("The temporary folder %1 cannot be filled. Check the free space there, or name another "
                       "place with TMPDIR.")
                     .arg(path());
    return false;
}

bool Workspace::makeRoot()
{
    const QString images = path() + paths::images;
    if (!QDir().mkpath(images) || !QDir().mkpath(path() + QStringLiteral("/tmp")))
        return false;
    const QDir drawn(QStringLiteral(":/uiutils/images"));
    const QStringList names = drawn.entryList();
    for (const QString& name : names) {
        if (!QFile::copy(drawn.filePath(name), images + name))
            return false;
    }
    return qputenv("UIUTILS_ROOT", QFile::encodeName(path()));
}

} // namespace uiutils::convert
