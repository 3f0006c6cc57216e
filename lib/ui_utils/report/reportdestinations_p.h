#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

class KIVClientItem;

/// Where reports go, as the base manager's settings and the drives say.
namespace uiutils {

/// The item of the base manager, or null; belongs to the back end.
KIVClientItem* baseManagerItem(const QString& id);
/// The item's value; invalid without it.
QVariant baseManagerValue(const QString& id);

/// What the setting says. Numbers are the service's.
enum SaveLocation { SaveInternally = 0, SaveOnUsb = 1, SaveOnBoth = 2 };

struct ReportDestinations
{
    /// As the services say now.
    static ReportDestinations current();

    /// The folder that a report is written into: a stick's, or `internal`. As long as no stick is announced, reports
    /// stay in the unit; one that is announced and not there is an error of the write, and never a reason to save
    /// elsewhere.
    QString folder(const QString& internal) const;
    /// The folders that need room: `internal`, the stick's, or both. A stick that is not there has none to ask for.
    QStringList foldersToCheck(const QString& internal) const;
    /// Whether what was written into the unit goes to a stick as well.
    bool copiesToUsb() const { return location == SaveOnBoth && isUsbAnnounced; }

    int location = SaveInternally;
    /// Whether the service item says that a stick is attached. Whether it is there, the mounts say: isDriveThere().
    bool isUsbAnnounced = false;
};

/// Whether the path lies on a stick.
bool isOnUsb(const QString& path);

/// Where the copy of a saved report lies on the stick.
QString usbPath(const QString& path);

/// Whether the drive of an instrument path is there to be written to, now. Without a stick the folder of its mount
/// point is the unit's, and nobody would find there what was to go with the stick.
bool isDriveThere(const QString& path);

} // namespace uiutils
