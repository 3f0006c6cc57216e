#include "report/nosynclist_p.h"

#include "core/durablefile.h"
#include "core/itemids.h"
#include "core/paths.h"

#include <kiv/kivclientinterface.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace uiutils {

namespace {

QString recordOf(const QString& path)
{
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    const bool hasSuffix = dot > path.lastIndexOf(QLatin1Char('/'));
    return (hasSuffix ? path.left(dot) : path) + QLatin1String(".json");
}

} // namespace

QStringList noSyncList()
{
    QFile file(onDisk(paths::noSyncList));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QStringList withReport(QStringList list, const QString& path)
{
    list << path << recordOf(path);
    list.removeDuplicates();
    return list;
}

QStringList withoutReport(QStringList list, const QString& path)
{
    list.removeAll(path);
    list.removeAll(recordOf(path));
    return list;
}

bool writeNoSyncList(const QStringList& list)
{
    const QString text = list.join(QLatin1Char('\n')) + (list.isEmpty() ? QLatin1String() : QLatin1String("\n"));
    const QString place = onDisk(paths::noSyncList);
    QDir().mkpath(QFileInfo(place).path());
    QString error;
    const bool ok = writeFileDurably(place, text.toUtf8(), &error);
    if (!ok)
        qWarning("The list of reports that are not synced cannot be stored: %s", qUtf8Printable(error));
    if (KIVClientInterface* client = ok ? KIVClientInterface::getBaseMgrClient() : nullptr)
        client->setItem(itemids::noSyncList, list);
    return ok;
}

} // namespace uiutils
