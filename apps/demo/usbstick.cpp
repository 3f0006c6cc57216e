#include "usbstick.h"

#include "files/diskpath.h"
#include "instrumentroot.h"
#include "places.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/filesystemusage.h>
#include <kiv/kivclientitem.h>
#include <kiv/kivnotification.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace uiutils::demo {

using kiv::embedded::EmbeddedBackend;
using kiv::embedded::EmbeddedService;

namespace {

const QString usbAttached = QStringLiteral(":result:basemgr:system:usbAttached:");

/// The folder of the drive's files while it is plugged in.
QString port()
{
    return QDir::cleanPath(diskPath(places::usb));
}

/// The same while it is unplugged. Its existence says so, across restarts too.
QString shelf()
{
    return QDir::cleanPath(port() + QStringLiteral("/../../stick"));
}

EmbeddedBackend* backend()
{
    return dynamic_cast<EmbeddedBackend*>(KIVBackend::current());
}

EmbeddedService* baseManager()
{
    return backend() ? backend()->service(EmbeddedBackend::baseManagerName) : nullptr;
}

KIVClientItem* attachedItem()
{
    return baseManager() ? baseManager()->item(usbAttached) : nullptr;
}

void setNoticed(bool isAttached)
{
    if (baseManager())
        baseManager()->setValue(usbAttached, isAttached);
}

void setMounted(bool isMounted)
{
    if (isMounted && baseManager())
        baseManager()->setMounted(places::usb, true);
    if (isMounted || !backend())
        return;
    // The user's own services may have mounted it, too.
    const QStringList names = backend()->serviceNames();
    for (const QString& name : names)
        backend()->service(name)->setMounted(places::usb, false);
}

/// Moves in one step, so that the files are always complete at one of the two places. An empty folder in the way is
/// replaced; with nothing to move an empty folder is created.
bool moveFolder(const QString& from, const QString& to, QString* error)
{
    if (!makeFolder(QFileInfo(to).path(), error))
        return false;
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0)
        return true;
    const int reason = errno;
    if (reason == ENOENT)
        return makeFolder(to, error);
    *error = UsbStick::tr("The files in %1 cannot be moved to %2: %3.")
                     .arg(from, to, QString::fromLocal8Bit(std::strerror(reason)));
    return false;
}

} // namespace

UsbStick::UsbStick(QObject* parent)
    : QObject(parent)
{
    if (isSupported())
        settle();
}

void UsbStick::settle()
{
    const bool isOut = QFileInfo::exists(shelf());
    const bool isIn = !isOut && (QFileInfo::exists(port()) || isAttached() || attachedItem()->getValue().toBool());
    QString error;
    const bool isThere = makeFolder(isIn ? port() : shelf(), &error);
    setMounted(isIn && isThere);
    setNoticed(isIn && isThere);
    if (!isThere)
        fail(error);
}

bool UsbStick::isSupported() const
{
    // Without a root folder of its own the demo would move a real mount point.
    return attachedItem() && port() != QDir::cleanPath(places::usb);
}

bool UsbStick::isAttached() const
{
    return FileSystemUsage::isMounted(places::usb);
}

QString UsbStick::mountPoint() const
{
    return places::usb;
}

bool UsbStick::plug()
{
    if (!isSupported())
        return fail(tr("No service of this instrument knows of USB drives."));
    const bool wasAttached = isAttached();
    QString error;
    if (!wasAttached && !moveFolder(shelf(), port(), &error))
        return fail(error);
    const QPointer<UsbStick> self(this);
    setMounted(true);
    setNoticed(true);
    if (self && !wasAttached)
        Q_EMIT attachedChanged();
    return true;
}

bool UsbStick::pull()
{
    if (!yank())
        return false;
    setNoticed(false);
    return true;
}

bool UsbStick::yank()
{
    if (!isAttached())
        return true;
    QString error;
    if (!moveFolder(port(), shelf(), &error))
        return fail(error);
    // What is written there without a check of the mount is lost from view, as on an instrument.
    QDir().mkdir(port());
    setMounted(false);
    Q_EMIT attachedChanged();
    return true;
}

bool UsbStick::fail(const QString& reason)
{
    // One dialog for the same object is enough, however often it is tried.
    delete findChild<KIVNotification*>();
    auto* const notification = new KIVNotification(this);
    notification->setLongLabel(tr("USB Drive"));
    notification->setMsg(reason);
    notification->setError();
    notification->notifyDialog();
    return false;
}

} // namespace uiutils::demo
