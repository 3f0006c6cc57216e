#include "previewpage.h"

#include "qml/scene/picturenode.h"

#include <QPainter>
#include <QQuickWindow>

#include <cmath>

namespace uiutils {

namespace {

/// How long a size must be stable before its picture is drawn: a pinch passes through many sizes.
constexpr int restMs = 120;
/// A picture of more pixels is stretched: textures have limits, and so has the memory.
constexpr qreal mostPixels = 8e6;

} // namespace

PreviewPage::PreviewPage(QQuickItem* parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    m_rest.setSingleShot(true);
    m_rest.setInterval(restMs);
    connect(&m_rest, &QTimer::timeout, this, &QQuickItem::polish);
}

PreviewPage::~PreviewPage() = default;

void PreviewPage::setPreview(ReportPreview* preview)
{
    if (preview == m_preview)
        return;
    if (m_preview)
        disconnect(m_preview, nullptr, this, nullptr);
    m_preview = preview;
    if (m_preview)
        connect(m_preview, &ReportPreview::pageCountChanged, this, &PreviewPage::startOver);
    startOver();
    Q_EMIT previewChanged();
}

void PreviewPage::setPage(int page)
{
    if (page == m_page)
        return;
    m_page = page;
    startOver();
    Q_EMIT pageChanged();
}

void PreviewPage::startOver()
{
    m_picture = QImage();
    m_isPictureNew = true;
    polish();
    update();
}

void PreviewPage::geometryChanged(const QRectF& now, const QRectF& before)
{
    QQuickItem::geometryChanged(now, before);
    if (now.size() == before.size())
        return;
    update();
    // The first picture is awaited.
    if (m_picture.isNull())
        polish();
    else
        m_rest.start();
}

QSize PreviewPage::wantedPixels() const
{
    const qreal ratio = window() ? window()->effectiveDevicePixelRatio() : 1;
    const QSizeF pixels = size() * ratio;
    const qreal excess = std::sqrt(pixels.width() * pixels.height() / mostPixels);
    return (excess > 1 ? pixels / excess : pixels).toSize();
}

/// Drawn here, on the GUI thread, and not while the scene is rendered: fonts are of one thread.
void PreviewPage::updatePolish()
{
    const QSize pixels = wantedPixels();
    if (!m_preview || pixels.isEmpty() || pixels == m_picture.size())
        return;
    const QSizeF page = m_preview->pageSize(m_page);
    if (m_page < 0 || m_page >= m_preview->pageCount() || page.isEmpty())
        return;
    m_picture = QImage(pixels, QImage::Format_RGB32);
    m_picture.fill(Qt::white);
    QPainter painter(&m_picture);
    painter.scale(pixels.width() / page.width(), pixels.height() / page.height());
    m_preview->paint(painter, m_page);
    m_isPictureNew = true;
    update();
}

QSGNode* PreviewPage::updatePaintNode(QSGNode* node, UpdatePaintNodeData*)
{
    return pictureNode(node, *this, m_picture, &m_isPictureNew, QQuickWindow::TextureIsOpaque);
}

} // namespace uiutils
