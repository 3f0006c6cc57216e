#include "screencamera.h"

#include "files/diskpath.h"
#include "files/screenshot.h"
#include "places.h"
#include "savefile.h"

#include <kiv/kivnotification.h>

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QQuickItem>

namespace uiutils::demo {

namespace {

/// Time in which any window that is being drawn gives a picture, in milliseconds.
constexpr int picturePatience = 10000;

const QString suffix = QStringLiteral(".png");

QString pathOf(const QString& baseName)
{
    return places::screenshots + baseName + suffix;
}

void tellTaken(const QString& shownPath)
{
    // The tray keeps a copy.
    KIVNotification notice;
    notice.setLongLabel(ScreenCamera::tr("Screenshot Saved"));
    notice.setMsg(shownPath);
    notice.notifyTray();
}

} // namespace

QByteArray pngOf(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "PNG") ? bytes : QByteArray();
}

ScreenCamera::ScreenCamera(QObject* parent)
    : QObject(parent)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(picturePatience);
}

QString ScreenCamera::freeBaseName(const QString& time)
{
    const QString wanted = QStringLiteral("screenshot_") + time;
    QString name = wanted;
    for (int number = 2; QFileInfo::exists(diskPath(pathOf(name))); ++number)
        name = QStringLiteral("%1_%2").arg(wanted).arg(number);
    return name;
}

void ScreenCamera::shoot(QQuickWindow* window)
{
    if (m_grab || !window)
        return;
    const QString baseName = freeBaseName(QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss")));
    m_grab = window->contentItem()->grabToImage();
    if (!m_grab) {
        fail(pathOf(baseName), tr("No picture of the window could be taken."));
        return;
    }
    // Queued, because the result must outlive its own signal.
    connect(
            m_grab.data(), &QQuickItemGrabResult::ready, this, [this, baseName] { keep(baseName); },
            Qt::QueuedConnection);
    m_patience.disconnect(this);
    connect(&m_patience, &QTimer::timeout, this, [this, baseName] {
        m_grab.clear();
        fail(pathOf(baseName), tr("The window was not drawn for %1 s.").arg(picturePatience / 1000));
    });
    m_patience.start();
}

void ScreenCamera::keep(const QString& baseName)
{
    m_patience.stop();
    // The timeout may have come in the same moment.
    if (!m_grab)
        return;
    const QByteArray bytes = pngOf(m_grab->image());
    m_grab.clear();
    const QString path = pathOf(baseName);
    if (bytes.isEmpty()) {
        fail(path, tr("The picture of the window is empty."));
        return;
    }
    if (!m_files.checkDriveSpaceForFile(qint64(bytes.size()), path)) {
        Q_EMIT failed(tr("There is not enough space for the picture."));
        return;
    }
    // If there is no folder, the write reports that.
    QDir().mkpath(diskPath(places::screenshots));
    QString error;
    if (!saveFile(diskPath(path), bytes, &error)) {
        fail(path, error);
        return;
    }
    Screenshot record;
    record.setBaseName(baseName);
    // The picture is safe without the record; the log has a line.
    record.saveMetadata();
    m_pictures += diskPath(path);
    tellTaken(m_files.getSanitizedPathName(path));
    Q_EMIT taken(path);
}

void ScreenCamera::fail(const QString& path, const QString& reason)
{
    qWarning("The screenshot %s was not taken: %s", qUtf8Printable(path), qUtf8Printable(reason));
    m_files.sendNotificationWriteError(path);
    Q_EMIT failed(reason);
}

} // namespace uiutils::demo
