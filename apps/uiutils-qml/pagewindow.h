#pragma once

#include "page.h"

#include <QSize>
#include <QString>

#include <functional>
#include <memory>

class QQuickItem;
class QQuickWindow;

namespace uiutils::qmltool {

/// A page on the screen: in its own window, if it is one, or in a window that all such pages share. A panel may stand
/// beside the pages.
class PageWindow
{
public:
    /// Pages are shown in `size`, or in their own size if that is empty.
    explicit PageWindow(const QSize& size);
    ~PageWindow();
    Q_DISABLE_COPY_MOVE(PageWindow)

    /// Shows an item beside every page, at the end of its window, or, if the page is a window itself, in a window
    /// beside that. Call it before the first page; the item must outlive the object.
    void setPanel(QQuickItem* panel) { m_panel = panel; }

    /// Shows a page that has a root. The page that was shown before ends; the new one has its place and size.
    void show(std::unique_ptr<Page> page);

    /// The page that is shown; null before the first.
    Page* page() const { return m_page.get(); }
    /// The window of the page that is shown; null before the first.
    QQuickWindow* window() const { return m_window; }

private:
    void showItem(QQuickItem* item);
    void showWindow(QQuickWindow* window);
    void arrange(QQuickItem* page);
    void showPanelAlone(QQuickWindow* page);
    void putPanelInto(QQuickWindow* window);
    int panelWidth() const;

    const QSize m_size;
    QQuickItem* m_panel = nullptr;
    /// Of pages in the shared window, when it was made.
    int m_pageWidth = 0;
    /// For the panel beside a page that is a window.
    std::unique_ptr<QQuickWindow> m_panelWindow;
    /// For pages that are not windows themselves. Pages end before it.
    std::unique_ptr<QQuickWindow> m_shared;
    std::unique_ptr<Page> m_page;
    QQuickWindow* m_window = nullptr;
};

/// Calls `go` with an empty text when the window has been drawn, or with the reason why it is not.
void whenDrawn(QQuickWindow* window, const std::function<void(const QString&)>& go);

/// Takes a picture of a window that has been drawn, writes it as PNG and calls `done` with the error, or an empty text.
void takePicture(QQuickWindow* window, const QString& file, const std::function<void(const QString&)>& done);

} // namespace uiutils::qmltool
