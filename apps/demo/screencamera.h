#pragma once

#include "files/fileutils.h"

#include <QImage>
#include <QObject>
#include <QQuickItemGrabResult>
#include <QQuickWindow>
#include <QSharedPointer>
#include <QStringList>
#include <QTimer>

namespace uiutils::demo {

/// The image as PNG; empty when there is no image.
QByteArray pngOf(const QImage& image);

/// Takes pictures of the screen and stores them in "/cust/public/screenshots/", each with its metadata record. The tray
/// notifies the user of each picture, a dialog of each failure.
class ScreenCamera : public QObject
{
    Q_OBJECT

public:
    explicit ScreenCamera(QObject* parent = nullptr);

    /// Takes a picture of everything in the window, its dialogs included, and returns before it is stored. Does nothing
    /// while another picture is being taken.
    Q_INVOKABLE void shoot(QQuickWindow* window);

    /// The paths of the pictures on this machine's disk, in the order of taking.
    QStringList pictures() const { return m_pictures; }

    /// "screenshot_20260131-142500" for a time with that text, followed by "_2", "_3" if a picture of that name exists.
    static QString freeBaseName(const QString& time);

Q_SIGNALS:
    /// The picture is stored; an instrument path.
    void taken(const QString& path);
    /// There is no picture; the text gives the reason, for the log.
    void failed(const QString& reason);

private:
    void keep(const QString& baseName);
    void fail(const QString& path, const QString& reason);

    FileUtils m_files;
    QStringList m_pictures;
    /// The picture being taken; null between pictures.
    QSharedPointer<QQuickItemGrabResult> m_grab;
    /// Runs while a picture is being taken.
    QTimer m_patience;
};

} // namespace uiutils::demo
