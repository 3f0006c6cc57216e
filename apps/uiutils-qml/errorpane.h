#pragma once

#include <QQmlEngine>
#include <QString>

#include <memory>

class QQuickItem;
class QQuickWindow;

namespace uiutils::qmltool {

/// What was wrong with the files that were read last, over the page that is shown. It does not depend on the page.
class ErrorPane
{
public:
    ErrorPane();
    ~ErrorPane();
    Q_DISABLE_COPY_MOVE(ErrorPane)

    /// Shows the text over what is in the window, until the user closes it or hide() is called.
    void show(QQuickWindow* window, const QString& text);
    void hide();

private:
    QQmlEngine m_engine;
    std::unique_ptr<QQuickItem> m_item;
};

} // namespace uiutils::qmltool
