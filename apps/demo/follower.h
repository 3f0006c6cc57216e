#pragma once

#include <QObject>
#include <QQuickItemGrabResult>
#include <QQuickWindow>
#include <QSharedPointer>
#include <QStringList>
#include <QVariant>

class KivData;

namespace uiutils {
class Host;
}

namespace uiutils::demo {

/// Waits, by itself, for what other processes do to the services of this demo: another application changes a setting,
/// the services end, the services return. Takes a picture of each.
class Follower : public QObject
{
    Q_OBJECT

public:
    /// `window` is the loaded main page, which shows the services of `host`; `pictures` the folder of the pictures,
    /// with a "/" at its end.
    Follower(const Host& host, QQuickWindow* window, const QString& pictures);

    QStringList pictures() const { return m_pictures; }

    /// Begins as soon as the services are there, and fails when they do not come.
    void start();

Q_SIGNALS:
    /// What has just been seen, in words.
    void noticed(const QString& text);
    void finished();
    void failed(const QString& text);

private:
    enum Stage { WaitsForServices, WaitsForChange, WaitsForEnd, WaitsForReturn };

    void begin();
    void giveUp();
    void onValue();
    void onReady();
    void onReturn();
    void show(const QString& picture, const QString& text);
    void keepPicture(const QString& path);

    const Host& m_host;
    QQuickWindow* const m_window;
    const QString m_folder;
    KivData* m_setting = nullptr;
    Stage m_stage = WaitsForServices;
    /// The setting as it was when the services ended.
    QVariant m_last;
    QStringList m_pictures;
    QSharedPointer<QQuickItemGrabResult> m_grab;
};

} // namespace uiutils::demo
