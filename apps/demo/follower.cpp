#include "follower.h"

#include "instrumentroot.h"
#include "service/kivdata.h"
#include "service/manifest.h"

#include <QQuickItem>
#include <QSaveFile>

namespace uiutils::demo {

namespace {

constexpr int settingsPage = 3;
const QString settingId = QStringLiteral(":config:basemgr:system:userInfo_lastName:");

} // namespace

Follower::Follower(QQuickWindow* window, const QString& pictures)
    : m_window(window)
    , m_folder(pictures)
{
}

void Follower::start()
{
    QString error;
    m_setting = Manifest::getKivData(settingId);
    if (!m_setting || !makeFolder(m_folder, &error)) {
        Q_EMIT failed(m_setting ? error : tr("There is no setting %1 to follow.").arg(settingId));
        return;
    }
    m_window->setProperty("page", settingsPage);
    connect(m_setting, &KivData::valueChanged, this, &Follower::onValue);
    connect(m_setting, &KivData::isReadyChanged, this, &Follower::onReady);
    Q_EMIT noticed(tr("Following the user's name, \"%1\".").arg(m_setting->getValueString()));
}

void Follower::onValue()
{
    if (m_stage != WaitsForChange)
        return;
    m_stage = WaitsForEnd;
    show(QStringLiteral("a-changed"),
            tr("Another application has changed it to \"%1\".").arg(m_setting->getValueString()));
}

void Follower::onReady()
{
    const bool isReady = m_setting->isReady();
    if (m_stage == WaitsForEnd && !isReady) {
        m_stage = WaitsForReturn;
        m_last = m_setting->getValue();
        show(QStringLiteral("b-ended"), tr("The services have ended; it stays \"%1\".").arg(m_last.toString()));
    } else if (m_stage == WaitsForReturn && isReady) {
        if (m_setting->getValue() == m_last)
            show(QStringLiteral("c-returned"), tr("The services have returned, and nothing is lost."));
        else
            Q_EMIT failed(tr("The services have returned with \"%1\" instead of \"%2\".")
                                  .arg(m_setting->getValueString(), m_last.toString()));
    }
}

void Follower::show(const QString& picture, const QString& text)
{
    Q_EMIT noticed(text);
    m_grab = m_window->contentItem()->grabToImage();
    if (!m_grab) {
        Q_EMIT failed(tr("The window gives no picture."));
        return;
    }
    const QString path = m_folder + picture + QStringLiteral(".png");
    // Queued, because the result must outlive its own signal.
    connect(
            m_grab.data(), &QQuickItemGrabResult::ready, this, [this, path] { keepPicture(path); },
            Qt::QueuedConnection);
}

void Follower::keepPicture(const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !m_grab->image().save(&file, "PNG") || !file.commit()) {
        Q_EMIT failed(tr("%1 was not written: %2").arg(path, file.errorString()));
        return;
    }
    m_pictures += path;
    if (path.endsWith(QLatin1String("c-returned.png")))
        Q_EMIT finished();
}

} // namespace uiutils::demo
