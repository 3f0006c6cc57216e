#include "base/ownlibrary_p.h"

#include "base/ownplace_p.h"

#include <QCoreApplication>
#include <QLibrary>

namespace uiutils {

namespace {

struct OwnLibrary
{
    Q_DECLARE_TR_FUNCTIONS(OwnLibrary)
};

} // namespace

QFunctionPointer ownLibraryFunction(const char* folder, const char* library, const char* function, QString* error)
{
    const QString place = QLatin1String(folder) + QLatin1Char('/') + QLatin1String(library);
    // A program that holds this code lies beside the folder of the libraries.
    const QString file = besideOwnFile({place, QStringLiteral("../lib/") + place});
    if (file.isEmpty()) {
        *error = OwnLibrary::tr("%1 is not installed").arg(QLatin1String(library));
        return nullptr;
    }
    QLibrary loaded(file);
    const QFunctionPointer found = loaded.resolve(function);
    if (!found)
        *error = loaded.errorString();
    return found;
}

} // namespace uiutils
