#pragma once

#include <QObject>
#include <QQmlComponent>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>

class QQmlEngine;
class QQuickWindow;

namespace uiutils::qmltool {

/// A QML page on the screen: in its own window, if it is one, or in a new one.
class PageWindow
{
public:
    /// Loads the page and shows it in `size`, or in its own size if that is empty. Without a window afterwards, error()
    /// says why.
    PageWindow(QQmlEngine* engine, const QString& file, const QSize& size);
    ~PageWindow();
    Q_DISABLE_COPY_MOVE(PageWindow)

    QQuickWindow* window() const { return m_window; }
    QString error() const { return m_error; }

private:
    void show(QQmlEngine* engine, const QSize& size);

    QQmlComponent m_component;
    std::unique_ptr<QObject> m_root;
    /// Only for a page that is not a window itself.
    std::unique_ptr<QQuickWindow> m_ownWindow;
    QQuickWindow* m_window = nullptr;
    QString m_error;
};

/// Calls `go` with an empty text when the window has been drawn, or with the reason why it is not.
void whenDrawn(QQuickWindow* window, const std::function<void(const QString&)>& go);

/// Takes a picture of a window that has been drawn, writes it as PNG and calls `done` with the error, or an empty text.
void takePicture(QQuickWindow* window, const QString& file, const std::function<void(const QString&)>& done);

} // namespace uiutils::qmltool
