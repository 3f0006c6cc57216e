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

PageWindow::~PageWindow() = default;

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
}

void PageWindow::showItem(QQuickItem* item)
{
    if (!m_shared) {
        m_shared = std::make_unique<QQuickWindow>();
        const QSize own = item->width() > 0 && item->height() > 0 ? item->size().toSize() : QSize(1024, 600);
        if (m_window)
            m_shared->setGeometry(m_window->geometry());
        else
            m_shared->resize(m_size.isEmpty() ? own : m_size);
    }
    m_window = m_shared.get();
    const auto fill = [this, item] { item->setSize(m_shared->size()); };
    QObject::connect(m_window, &QWindow::widthChanged, item, fill);
    QObject::connect(m_window, &QWindow::heightChanged, item, fill);
    qmlEngine(item)->setIncubationController(m_window->incubationController());
    fill();
    item->setParentItem(m_window->contentItem());
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
