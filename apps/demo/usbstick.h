#pragma once

#include <QObject>
#include <QString>

namespace uiutils::demo {

/// The USB drive of an instrument on a desktop: a folder stands for the drive that is plugged in and out.
///
/// While the drive is plugged in, the folder is at the instrument's mount point, a drive is mounted there and the base
/// manager reports it. While it is unplugged, the folder is where no path of the instrument leads, and at the mount
/// point there is a folder of the unit, as on an instrument. The drive's files are moved together and never changed.
///
/// Constructing it makes the three agree: a drive stays plugged in or unplugged across a restart; if there has been
/// none yet, the services decide. Errors are shown in a dialog. It works on the current embedded back end, and only on
/// a root folder of the demo's own.
class UsbStick : public QObject
{
    Q_OBJECT
    /// Whether there are a base manager that can report a drive and a root folder. Otherwise nothing can be plugged in.
    Q_PROPERTY(bool supported READ isSupported CONSTANT)
    /// Whether the drive is plugged in, even if the base manager has not noticed.
    Q_PROPERTY(bool attached READ isAttached NOTIFY attachedChanged)
    /// The instrument's path of the drive.
    Q_PROPERTY(QString mountPoint READ mountPoint CONSTANT)

public:
    explicit UsbStick(QObject* parent = nullptr);

    bool isSupported() const;
    bool isAttached() const;
    QString mountPoint() const;

    /// False when the drive cannot be plugged in or unplugged; a dialog gives the reason. True, without an effect, when
    /// it already is.
    Q_INVOKABLE bool plug();
    Q_INVOKABLE bool pull();
    /// Unplugs the drive before the base manager has noticed. pull() lets it notice.
    Q_INVOKABLE bool yank();

Q_SIGNALS:
    void attachedChanged();

private:
    void settle();
    bool fail(const QString& reason);
};

} // namespace uiutils::demo
