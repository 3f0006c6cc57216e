#include "base/paths_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextCodec>
#include <QtDebug>

namespace uiutils {

namespace {

bool liesBelow(const QString& path, QLatin1String folder)
{
    return path.startsWith(folder) && (path.size() == folder.size() || path.at(folder.size()) == QLatin1Char('/'));
}

bool belongsToInstrument(const QString& path)
{
    return liesBelow(path, QLatin1String("/cust")) || liesBelow(path, QLatin1String("/mnt/usb"))
            || liesBelow(path, QLatin1String("/base")) || path.startsWith(paths::plotImageStem);
}

bool isInEncodingOfFiles(const QByteArray& name)
{
    return QFile::encodeName(QFile::decodeName(name)) == name;
}

/// The value of UIUTILS_ROOT. If the encoding would change it to the name of another folder: a name that is too long
/// for every file system, so that every access below it fails and nothing is ever created there.
QString root()
{
    const QByteArray name = qgetenv("UIUTILS_ROOT");
    if (isInEncodingOfFiles(name))
        return QFile::decodeName(name);
    static const bool isLogged = [] {
        qWarning("%s", qUtf8Printable(rootProblem()));
        return true;
    }();
    Q_UNUSED(isLogged)
    return QStringLiteral("/UIUTILS_ROOT cannot be used ").leftJustified(300, QLatin1Char('.'));
}

} // namespace

QString rootProblem()
{
    if (isInEncodingOfFiles(qgetenv("UIUTILS_ROOT")))
        return QString();
    return QCoreApplication::translate("Paths",
            "UIUTILS_ROOT names a folder that is not written in the encoding of file names (%1). None of the "
            "instrument's files are read or written. Name another folder.")
            .arg(QString::fromLatin1(QTextCodec::codecForLocale()->name()));
}

QString paths::plotImage(quint64 number)
{
    return plotImageStem + QString::number(number) + QLatin1String(".png");
}

QString onDisk(const QString& path)
{
    const QString folder = root();
    // A relative path refers to the machine's own files, and cleaning one may leave ".." in it.
    if (folder.isEmpty() || !path.startsWith(QLatin1Char('/')))
        return path;
    QString clean = QDir::cleanPath(path);
    // The root has no parent, and Qt leaves that to the system.
    while (clean.startsWith(QLatin1String("/../")))
        clean.remove(0, 3);
    if (!belongsToInstrument(clean))
        return path;
    // A slash at the end of the path is kept.
    if (path.endsWith(QLatin1Char('/')))
        clean += QLatin1Char('/');
    return folder + clean;
}

} // namespace uiutils
