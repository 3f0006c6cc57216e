#pragma once

#include <QObject>
#include <QString>

namespace uiutils::demo {

/// The memory stick of an instrument that stands on a desk: what is plugged and pulled is a folder.
///
/// While the stick is in, the folder lies at the instrument's mount point, a drive is mounted there and the base
/// manager says that one is attached. While it is out, the folder lies where no path of the instrument leads, and what
/// is left at the mount point is a folder of the unit's own, as on an instrument. The stick's files are moved as a
/// whole and never touched.
///
/// Constructing it makes the three agree: a stick stays in or out over a restart; where there has been none yet, the
/// services say. What cannot be done is told in a dialog. Works on the embedded back end that is current, and on a root
/// folder of its own only.
class UsbStick : public QObject
{
    Q_OBJECT
    /// Whether there is a base manager that can know of a stick, and a root folder. Without them there is none to plug.
    Q_PROPERTY(bool supported READ isSupported CONSTANT)
    /// Whether the stick is in, also while the base manager has not noticed.
    Q_PROPERTY(bool attached READ isAttached NOTIFY attachedChanged)
    /// The instrument's path of the stick.
    Q_PROPERTY(QString mountPoint READ mountPoint CONSTANT)

public:
    explicit UsbStick(QObject* parent = nullptr);

    bool isSupported() const;
    bool isAttached() const;
    QString mountPoint() const;

    /// False when the stick cannot be put in or taken out, for which the user is told the reason. True and nothing more
    /// when it is in or out already.
    Q_INVOKABLE bool plug();
    Q_INVOKABLE bool pull();
    /// Takes the stick out, and the base manager has not noticed yet. pull() lets it notice.
    Q_INVOKABLE bool yank();

Q_SIGNALS:
    void attachedChanged();

private:
    void settle();
    bool fail(const QString& reason);
};

} // namespace uiutils::demo
