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

/// Takes pictures of the screen and keeps them in "/cust/public/screenshots/", each with its metadata record. The tray
/// tells of each picture; a dialog tells when there is none.
class ScreenCamera : public QObject
{
    Q_OBJECT

public:
    explicit ScreenCamera(QObject* parent = nullptr);

    /// Takes a picture of everything that the window shows, its dialogs too, and returns before it is kept. Nothing
    /// happens while one is under way.
    Q_INVOKABLE void shoot(QQuickWindow* window);

    /// Where the pictures lie on this machine's disk, in their order.
    QStringList pictures() const { return m_pictures; }

    /// "screenshot_20260131-142500" for a time of that text, with "_2", "_3" behind it when a picture of that name is
    /// there.
    static QString freeBaseName(const QString& time);

Q_SIGNALS:
    /// The picture is kept; an instrument path.
    void taken(const QString& path);
    /// There is none; the text says why, in words for whoever looks into the matter.
    void failed(const QString& reason);

private:
    void keep(const QString& baseName);
    void fail(const QString& path, const QString& reason);

    FileUtils m_files;
    QStringList m_pictures;
    /// The picture under way; null between pictures.
    QSharedPointer<QQuickItemGrabResult> m_grab;
    /// Runs while a picture is under way.
    QTimer m_patience;
};

} // namespace uiutils::demo
