#include "pagewindow.h"

#include "base/durablefile_p.h"
#include "texts.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QQuickView>
#include <QTimer>
#include <QUrl>

namespace uiutils::qmltool {

namespace {

QString plainTextOf(const QQmlComponent& component)
{
    QStringList lines;
    const QList<QQmlError> errors = component.errors();
    for (const QQmlError& error : errors)
        lines.append(error.toString());
    return lines.join(QLatin1Char('\n'));
}

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

PageWindow::PageWindow(QQmlEngine* engine, const QString& file, const QSize& size)
    : m_component(engine)
{
    if (!QFileInfo(file).isFile()) {
        m_error = Texts::tr("There is no page %1.").arg(file);
        return;
    }
    m_component.loadUrl(QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath()), QQmlComponent::PreferSynchronous);
    m_root.reset(m_component.create());
    if (m_root)
        show(engine, size);
    else
        m_error = plainTextOf(m_component);
}

PageWindow::~PageWindow() = default;

void PageWindow::show(QQmlEngine* engine, const QSize& size)
{
    m_window = qobject_cast<QQuickWindow*>(m_root.get());
    if (m_window) {
        if (!size.isEmpty())
            m_window->resize(size);
        m_window->show();
        return;
    }
    auto* item = qobject_cast<QQuickItem*>(m_root.get());
    if (!item) {
        m_error = Texts::tr("The page is neither an item nor a window.");
        return;
    }
    auto view = std::make_unique<QQuickView>(engine, nullptr);
    view->setResizeMode(QQuickView::SizeRootObjectToView);
    if (!size.isEmpty())
        item->setSize(size);
    else if (item->width() <= 0 || item->height() <= 0)
        item->setSize({1024, 600});
    // The view takes ownership of the page.
    view->setContent(m_component.url(), &m_component, m_root.release());
    m_window = view.get();
    m_ownWindow = std::move(view);
    m_window->show();
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
