#pragma once

#include <QObject>
#include <QQmlComponent>
#include <QString>

#include <memory>

class QQmlEngine;
class QQuickWindow;

namespace uiutils::qmltool {

/// A QML page on the screen: in the window that it is, or in one made for it.
class PageWindow
{
public:
    /// Loads the page. Without a window afterwards, error() says why.
    PageWindow(QQmlEngine* engine, const QString& file);
    ~PageWindow();
    Q_DISABLE_COPY_MOVE(PageWindow)

    QQuickWindow* window() const { return m_window; }
    QString error() const { return m_error; }

private:
    void show(QQmlEngine* engine);

    QQmlComponent m_component;
    std::unique_ptr<QObject> m_root;
    /// Only for a page that is no window itself.
    std::unique_ptr<QQuickWindow> m_ownWindow;
    QQuickWindow* m_window = nullptr;
    QString m_error;
};

/// Draws the window and writes the picture as PNG; returns what went wrong, or an empty text.
QString writePicture(QQuickWindow* window, const QString& file);

} // namespace uiutils::qmltool
