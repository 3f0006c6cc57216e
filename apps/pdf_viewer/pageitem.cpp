#include "pageitem.h"

#include "pdfpages.h"
#include "qml/scene/picturenode.h"

#include <QQuickWindow>

namespace uiutils::viewer {

namespace {

/// How long a size must be stable before its picture is drawn: a pinch passes through many sizes.
constexpr int restMs = 120;
/// When a page without a picture is given up: rendering has limits of its own, which some files evade.
constexpr int patienceMs = 30000;

} // namespace

PageItem::PageItem(QQuickItem* parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    m_rest.setSingleShot(true);
    m_rest.setInterval(restMs);
    connect(&m_rest, &QTimer::timeout, this, &PageItem::request);
    m_patience.setSingleShot(true);
    m_patience.setInterval(patienceMs);
    connect(&m_patience, &QTimer::timeout, this, [this] { take(QImage()); });
}

PageItem::~PageItem()
{
    if (m_job)
        m_job->isUnwanted = true;
}

void PageItem::setDocument(ViewerDocument* document)
{
    if (document == m_document)
        return;
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_document = document;
    if (m_document)
        connect(m_document, &ViewerDocument::stateChanged, this, &PageItem::request);
    startOver();
    Q_EMIT documentChanged();
}

void PageItem::setPage(int page)
{
    if (page == m_page)
        return;
    m_page = page;
    startOver();
    Q_EMIT pageChanged();
}

void PageItem::startOver()
{
    m_picture = QImage();
    m_isPictureNew = true;
    m_requested = QSize();
    update();
    setStatus(Drawing);
    request();
}

void PageItem::componentComplete()
{
    QQuickItem::componentComplete();
    request();
}

void PageItem::geometryChanged(const QRectF& now, const QRectF& before)
{
    QQuickItem::geometryChanged(now, before);
    if (now.size() == before.size())
        return;
    update();
    requestSoon();
}

void PageItem::requestSoon()
{
    // The first picture is awaited.
    if (m_picture.isNull())
        request();
    else
        m_rest.start();
}

QSize PageItem::wantedPixels() const
{
    const qreal ratio = window() ? window()->effectiveDevicePixelRatio() : 1;
    return PdfPages::renderedSize((size() * ratio).toSize());
}

void PageItem::request()
{
    if (!isComponentComplete() || !m_document || m_document->state() != ViewerDocument::Ready)
        return;
    const QSize pixels = wantedPixels();
    if (pixels.isEmpty() || pixels == m_requested)
        return;
    if (m_job)
        m_job->isUnwanted = true;
    m_requested = pixels;
    m_patience.start();
    m_job = m_document->render(m_page, pixels, this, [this](const QImage& picture) { take(picture); });
}

void PageItem::take(const QImage& picture)
{
    m_patience.stop();
    if (picture.isNull()) {
        // A coarse picture is better than none.
        if (m_picture.isNull())
            setStatus(Failed);
        return;
    }
    m_picture = picture;
    m_isPictureNew = true;
    update();
    setStatus(Drawn);
}

void PageItem::setStatus(Status status)
{
    if (status == m_status)
        return;
    m_status = status;
    Q_EMIT statusChanged();
}

QSGNode* PageItem::updatePaintNode(QSGNode* node, UpdatePaintNodeData*)
{
    return pictureNode(node, *this, m_picture, &m_isPictureNew, QQuickWindow::TextureIsOpaque);
}

} // namespace uiutils::viewer
