#pragma once

#include <QString>
#include <QStringList>

/// Where reports go, as the base manager's settings and the drives say.
namespace uiutils {

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
    /// Whether the service item says that a stick is attached. Whether it is there, the mounts say:
    /// instrument::isDriveThere().
    bool isUsbAnnounced = false;
};

} // namespace uiutils
