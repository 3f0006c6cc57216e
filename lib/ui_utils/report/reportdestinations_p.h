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

    /// The folder that a report is written into: a stick's, or `internal`. Without a stick reports stay in the unit.
    QString folder(const QString& internal) const;
    /// The folders that need room: `internal`, the stick's, or both.
    QStringList foldersToCheck(const QString& internal) const;
    /// Whether what was written into the unit goes to a stick as well.
    bool copiesToUsb() const { return location == SaveOnBoth && isUsbAttached; }

    int location = SaveInternally;
    bool isUsbAttached = false;
};

} // namespace uiutils
