#include "follower.h"

#include "instrumentroot.h"
#include "service/kivdata.h"
#include "service/manifest.h"
#include "ui_host/host.h"

#include <kiv/kivclientinterface.h>

#include <QQuickItem>
#include <QSaveFile>
#include <QTimer>

namespace uiutils::demo {

namespace {

/// Time in which services start, also on a machine with much to do.
constexpr int patienceMs = 30 * 1000;
const QString settingId = QStringLiteral(":config:basemgr:system:userInfo_lastName:");

} // namespace

Follower::Follower(const Host& host, QQuickWindow* window, const QString& pictures)
    : m_host(host)
    , m_window(window)
    , m_folder(pictures)
{
}

void Follower::start()
{
    QString error;
    if (!makeFolder(m_folder, &error)) {
        Q_EMIT failed(error);
        return;
    }
    // The service may come later, its items after it, and their values last.
    connect(&m_host, &Host::serviceAdded, this, &Follower::begin, Qt::QueuedConnection);
    const auto* base = KIVClientInterface::getBaseMgrClient();
    if (base)
        connect(base, &KIVClientInterface::itemsChanged, this, &Follower::begin, Qt::QueuedConnection);
    // Without a client there is no base manager that could come.
    QTimer::singleShot(base ? patienceMs : 0, this, &Follower::giveUp);
    begin();
}

void Follower::begin()
{
    if (m_stage != WaitsForServices)
        return;
    m_setting = Manifest::getKivData(settingId);
    if (!m_setting || !m_setting->isReady())
        return;
    m_stage = WaitsForChange;
    QMetaObject::invokeMethod(m_window, "open", Q_ARG(QVariant, QStringLiteral("people")));
    connect(m_setting, &KivData::valueChanged, this, &Follower::onValue);
    connect(m_setting, &KivData::isReadyChanged, this, &Follower::onReady);
    Q_EMIT noticed(tr("Following the user's name, \"%1\".").arg(m_setting->getValueString()));
}

void Follower::giveUp()
{
    if (m_stage == WaitsForServices)
        Q_EMIT failed(tr("There is no setting %1 to follow. Start kivd with the service that has it.").arg(settingId));
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
        // The setting is ready before it has its value.
        QMetaObject::invokeMethod(this, &Follower::onReturn, Qt::QueuedConnection);
    }
}

void Follower::onReturn()
{
    if (m_setting->getValue() == m_last)
        show(QStringLiteral("c-returned"), tr("The services have returned, and nothing is lost."));
    else
        Q_EMIT failed(tr("The services have returned with \"%1\" instead of \"%2\".")
                              .arg(m_setting->getValueString(), m_last.toString()));
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
