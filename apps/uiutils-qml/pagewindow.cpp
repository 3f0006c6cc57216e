#include "pagewindow.h"

#include "base/durablefile_p.h"
#include "texts.h"

#include <QBuffer>
#include <QImage>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QQuickWindow>
#include <QTimer>

namespace uiutils::qmltool {

namespace {

QString writePicture(const QImage& image, const QString& file)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QString error;
    if (!image.save(&buffer, "PNG"))
        return Texts::tr("No picture of the page could be taken for %1.").arg(file);
    return writeFileDurably(file, bytes, &error) ? QString() : error;
}

} // namespace

PageWindow::PageWindow(const QSize& size)
    : m_size(size)
{
}

PageWindow::~PageWindow()
{
    // The panel belongs to somebody else.
    if (m_panel)
        m_panel->setParentItem(nullptr);
}

void PageWindow::show(std::unique_ptr<Page> page)
{
    if (auto* window = qobject_cast<QQuickWindow*>(page->root()))
        showWindow(window);
    else
        showItem(qobject_cast<QQuickItem*>(page->root()));
    m_window->show();
    // Only now, so that no moment is without a window, after which an application ends.
    m_page = std::move(page);
}

void PageWindow::showWindow(QQuickWindow* window)
{
    if (m_window)
        window->setGeometry(m_window->geometry());
    else if (!m_size.isEmpty())
        window->resize(m_size);
    if (m_shared)
        m_shared->hide();
    m_window = window;
    if (m_panel)
        showPanelAlone(window);
}

void PageWindow::showItem(QQuickItem* item)
{
    if (!m_shared) {
        m_shared = std::make_unique<QQuickWindow>();
        const QSize own = item->width() > 0 && item->height() > 0 ? item->size().toSize() : QSize(1024, 600);
        if (m_window)
            m_shared->setGeometry(m_window->geometry());
        else
            m_shared->resize((m_size.isEmpty() ? own : m_size) + QSize(panelWidth(), 0));
        m_pageWidth = m_shared->width() - panelWidth();
    }
    m_window = m_shared.get();
    if (m_panelWindow)
        m_panelWindow->hide();
    const auto fill = [this, item] { arrange(item); };
    QObject::connect(m_window, &QWindow::widthChanged, item, fill);
    QObject::connect(m_window, &QWindow::heightChanged, item, fill);
    qmlEngine(item)->setIncubationController(m_window->incubationController());
    if (m_panel)
        putPanelInto(m_window);
    fill();
    item->setParentItem(m_window->contentItem());
}

/// The page keeps its width beside the panel. In a window that the user made small both get smaller.
void PageWindow::arrange(QQuickItem* page)
{
    const int beside = qMin(panelWidth(), qMax(m_shared->width() - m_pageWidth, m_shared->width() / 2));
    page->setSize(QSizeF(m_shared->width() - beside, m_shared->height()));
    if (!m_panel)
        return;
    m_panel->setPosition(QPointF(m_shared->width() - beside, 0));
    m_panel->setSize(QSizeF(beside, m_shared->height()));
}

void PageWindow::showPanelAlone(QQuickWindow* page)
{
    if (!m_panelWindow) {
        m_panelWindow = std::make_unique<QQuickWindow>();
        m_panelWindow->setTitle(Texts::tr("Inspector"));
        m_panelWindow->resize(panelWidth(), qMax(page->height(), int(m_panel->implicitHeight())));
        m_panelWindow->setPosition(page->x() + page->width(), page->y());
        const auto fill = [this] { m_panel->setSize(m_panelWindow->size()); };
        QObject::connect(m_panelWindow.get(), &QWindow::widthChanged, m_panelWindow.get(), fill);
        QObject::connect(m_panelWindow.get(), &QWindow::heightChanged, m_panelWindow.get(), fill);
    }
    // The program ends with its page.
    QObject::connect(page, &QWindow::visibleChanged, m_panelWindow.get(), [this, page](bool isVisible) {
        if (!isVisible && m_window == page)
            m_panelWindow->hide();
    });
    putPanelInto(m_panelWindow.get());
    m_panel->setPosition(QPointF());
    m_panel->setSize(m_panelWindow->size());
    m_panelWindow->show();
}

void PageWindow::putPanelInto(QQuickWindow* window)
{
    qmlEngine(m_panel)->setIncubationController(window->incubationController());
    m_panel->setParentItem(window->contentItem());
}

int PageWindow::panelWidth() const
{
    return m_panel ? int(m_panel->implicitWidth()) : 0;
}

void whenDrawn(QQuickWindow* window, const std::function<void(const QString&)>& go)
{
    // The window has no size before the first frame.
    auto first = std::make_shared<QMetaObject::Connection>();
    *first = QObject::connect(
            window, &QQuickWindow::frameSwapped, window,
            [go, first] {
                QObject::disconnect(*first);
                go(QString());
            },
            Qt::QueuedConnection);
    // Time in which any window that is being drawn has been drawn.
    constexpr int patienceMs = 20000;
    QTimer::singleShot(patienceMs, window, [go, first] {
        if (QObject::disconnect(*first))
            go(Texts::tr("The page was not drawn in time. Keep its window in sight, or unset DISPLAY and "
                         "WAYLAND_DISPLAY."));
    });
}

void takePicture(QQuickWindow* window, const QString& file, const std::function<void(const QString&)>& done)
{
    const QSharedPointer<QQuickItemGrabResult> result = window->contentItem()->grabToImage();
    if (!result)
        return done(Texts::tr("No picture of the page could be taken for %1.").arg(file));
    // Queued, because the result, which this holds, must outlive its own signal.
    QObject::connect(
            result.data(), &QQuickItemGrabResult::ready, window,
            [result, file, done] { done(writePicture(result->image(), file)); }, Qt::QueuedConnection);
}

} // namespace uiutils::qmltool
