#include "activation.h"

#include "common/complaint.h"
#include "texts.h"

#include "base/durablefile_p.h"

#include <bus/busnames.h>

#include <QCoreApplication>
#include <QDir>

namespace uiutils::kivd {

namespace {

/// As the bus takes it apart again.
QString quoted(QString argument)
{
    return QLatin1Char('\'') + argument.replace(QLatin1Char('\''), QLatin1String("'\\''")) + QLatin1Char('\'');
}

QString commandLine(const Options& options)
{
    QString line = quoted(QCoreApplication::applicationFilePath());
    for (const QString& folder : options.serviceFolders)
        line += QLatin1String(" --services ") + quoted(QDir(folder).absolutePath());
    if (options.isFollowing)
        line += QLatin1String(" --follow");
    return line + QLatin1String(" --root ") + quoted(options.root);
}

} // namespace

int writeActivationFiles(const QStringList& services, const Options& options)
{
    const QString folder = options.activationFolder;
    if (!QDir().mkpath(folder))
        return apps::complain(Texts::tr("The folder %1 cannot be made.").arg(folder));
    for (const QString& service : services) {
        const QString name = kiv::bus::serviceBusName(service);
        const QString path = QDir(folder).filePath(name + QLatin1String(".service"));
        const QString text = QStringLiteral("[D-BUS Service]\nName=%1\nExec=%2\nSystemdService=kivd.service\n")
                                     .arg(name, commandLine(options));
        QString error;
        if (!writeFileDurably(path, text.toUtf8(), &error))
            return apps::complain(error);
    }
    return apps::exitDone;
}

} // namespace uiutils::kivd
