#include "iconpicture.h"

#include "iconpictures.h"
#include "qml/scene/picturenode.h"

#include <QGuiApplication>
#include <QQuickWindow>

namespace uiutils {

IconPicture::IconPicture(QQuickItem* parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &QQuickItem::polish);
}

void IconPicture::setName(const QString& name)
{
    if (name == m_name)
        return;
    m_name = name;
    polish();
    Q_EMIT nameChanged();
}

void IconPicture::setSize(qreal size)
{
    if (size == m_size)
        return;
    m_size = size;
    QQuickItem::setSize({size, size});
    polish();
    Q_EMIT sizeChanged();
}

void IconPicture::setColor(const QColor& color)
{
    if (color == m_color)
        return;
    m_color = color;
    polish();
    Q_EMIT colorChanged();
}

void IconPicture::updatePolish()
{
    const qreal scale = window() ? window()->effectiveDevicePixelRatio() : 1;
    m_picture = iconPicture(
            m_name, qRound(m_size * scale), m_color, QGuiApplication::layoutDirection() == Qt::RightToLeft);
    m_isNew = true;
    update();
}

QSGNode* IconPicture::updatePaintNode(QSGNode* node, UpdatePaintNodeData*)
{
    return pictureNode(node, *this, m_picture, &m_isNew, QQuickWindow::TextureHasAlphaChannel);
}

void IconPicture::itemChange(ItemChange change, const ItemChangeData& data)
{
    if (change == ItemDevicePixelRatioHasChanged || (change == ItemSceneChange && data.window))
        polish();
    QQuickItem::itemChange(change, data);
}

} // namespace uiutils
