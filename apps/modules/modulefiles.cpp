#include "modules/modulefiles.h"

#include "base/durablefile_p.h"
#include "modules/moduletexts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <optional>

namespace uiutils::modules {

namespace {

struct File
{
    QString name;
    QByteArray contents;
};

QString importOf(const Module& module, const Place& place)
{
    return place.importName + QLatin1Char('.') + module.name;
}

/// "Instrument/Optical"
QString pathOf(const Module& module, const Place& place)
{
    return importOf(module, place).replace(QLatin1Char('.'), QLatin1Char('/'));
}

/// In the order of writing: without the last one, there is no module.
QVector<File> filesOf(const Module& module, const Place& place)
{
    const QString import = importOf(module, place);
    return {{module.name + QStringLiteral(".qml"), singletonText(module)},
            {QStringLiteral("plugins.qmltypes"), typesText(module, import)},
            {QStringLiteral("qmldir"), directoryText(module, import)}};
}

/// Empty when there is no file; nothing when it cannot be read.
std::optional<QByteArray> contentsOf(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return QByteArray();
    QFile file(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

bool isOurs(const QByteArray& contents)
{
    return contents.isEmpty() || contents.left(contents.indexOf('\n')).contains(mark.data());
}

QString refusal(const QString& path)
{
    return QStringLiteral("%1 was not made by uiutils-describe and is not replaced. Remove it, or name another place.")
            .arg(QDir::toNativeSeparators(path));
}

/// Returns why it could not be written.
QString writeModule(const Module& module, const Place& place)
{
    const QString folder = place.folder + QLatin1Char('/') + pathOf(module, place) + QLatin1Char('/');
    QVector<File> changed;
    const QVector<File> files = filesOf(module, place);
    for (const File& file : files) {
        const std::optional<QByteArray> present = contentsOf(folder + file.name);
        if (!present || !isOurs(*present))
            return refusal(folder + file.name);
        if (*present != file.contents)
            changed.append(file);
    }
    const bool isTemporary = place.kind == Place::Temporary;
    if (!changed.isEmpty() && !(isTemporary ? QDir().mkpath(folder) : makeFolderDurably(folder)))
        return QStringLiteral("The folder %1 cannot be created.").arg(folder);
    QString error;
    for (const File& file : qAsConst(changed)) {
        const QString path = folder + file.name;
        if (isTemporary ? !writeFileForNow(path, file.contents) : !writeFileDurably(path, file.contents, &error))
            return isTemporary ? QStringLiteral("%1 cannot be written.").arg(path) : error;
    }
    return QString();
}

} // namespace

QStringList write(const QVector<Module>& modules, const Place& place)
{
    QStringList problems;
    for (const Module& module : modules) {
        const QString problem = writeModule(module, place);
        if (!problem.isEmpty())
            problems += problem;
    }
    return problems;
}

QString writeResources(const QVector<Module>& modules, const Place& place, const QString& path)
{
    const QDir folder(place.folder);
    QString text = QStringLiteral("<!-- %1 -->\n<RCC>\n    <qresource prefix=\"/qt-project.org/imports\">\n").arg(mark);
    for (const Module& module : modules) {
        const QVector<File> files = filesOf(module, place);
        for (const File& file : files) {
            const QString relative = pathOf(module, place) + QLatin1Char('/') + file.name;
            text += QStringLiteral("        <file alias=\"%1\">%2</file>\n")
                            .arg(relative, folder.absoluteFilePath(relative).toHtmlEscaped());
        }
    }
    text += QStringLiteral("    </qresource>\n</RCC>\n");
    const std::optional<QByteArray> present = contentsOf(path);
    if (!present || !isOurs(*present))
        return refusal(path);
    if (*present == text.toUtf8())
        return QString();
    QString error;
    return writeFileDurably(path, text.toUtf8(), &error) ? QString() : error;
}

} // namespace uiutils::modules
