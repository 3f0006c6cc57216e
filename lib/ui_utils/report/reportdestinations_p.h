#pragma once

#include <QString>
#include <QStringList>

/// Where reports are saved, as the base manager's settings and the drives say.
namespace uiutils {

/// The values of the setting; the numbers are the service's.
enum SaveLocation { SaveInternally = 0, SaveOnUsb = 1, SaveOnBoth = 2 };

struct ReportDestinations
{
    /// What the services say now.
    static ReportDestinations current();

    /// The folder that a report is written into: the USB drive's, or `internal`. As long as no USB drive is announced,
    /// reports are saved on the unit. A drive that is announced and not there is an error when the file is written, and
    /// never a reason to save elsewhere.
    QString folder(const QString& internal) const;
    /// The folders that need space: `internal`, the USB drive's, or both. A USB drive that is not there is left out.
    QStringList foldersToCheck(const QString& internal) const;
    /// Whether what is written on the unit is copied to a USB drive.
    bool copiesToUsb() const { return location == SaveOnBoth && isUsbAnnounced; }

    int location = SaveInternally;
    /// Whether the service item says that a USB drive is attached. Whether it is mounted is another question:
    /// instrument::isDriveThere().
    bool isUsbAnnounced = false;
};

} // namespace uiutils
