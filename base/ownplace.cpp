#include "base/ownplace_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>
#include <link.h>

namespace uiutils {

namespace {

/// A program lies one folder below its prefix, a library at most three: lib/ARCHITECTURE/FOLDER.
constexpr int deepest = 3;

} // namespace

QString ownFile()
{
    Dl_info info {};
    link_map* map = nullptr;
    const auto* address = reinterpret_cast<const void*>(&ownFile);
    const bool found = ::dladdr1(address, &info, reinterpret_cast<void**>(&map), RTLD_DL_LINKMAP) != 0;
    const QString name = found && map ? QFile::decodeName(map->l_name) : QString();
    // The program itself has no name there.
    return QFileInfo(name.isEmpty() ? QStringLiteral("/proc/self/exe") : name).canonicalFilePath();
}

QString besideOwnFile(std::initializer_list<QString> places)
{
    const QString own = ownFile();
    for (const QString& place : places) {
        const QFileInfo there(QFileInfo(own).path() + QLatin1Char('/') + place);
        if (!own.isEmpty() && there.exists())
            return there.canonicalFilePath();
    }
    return QString();
}

QString installedFolder(const QString& place)
{
    const QString own = ownFile();
    if (own.isEmpty())
        return QString();
    QDir above = QFileInfo(own).dir();
    for (int level = 0; level < deepest && above.cdUp(); ++level) {
        if (QFileInfo(above.filePath(place)).isDir())
            return above.filePath(place);
    }
    return QString();
}

} // namespace uiutils
