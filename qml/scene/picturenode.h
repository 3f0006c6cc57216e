#pragma once

#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSGImageNode>

namespace uiutils {

/// For QQuickItem::updatePaintNode() of an item that is one picture: the node that shows `picture` all over `item`,
/// made of the `node` that the item had until now. Null, and `node` is deleted, without a picture. `isNew` says that
/// the node does not show this picture yet, and is false afterwards.
inline QSGNode* pictureNode(QSGNode* node, const QQuickItem& item, const QImage& picture, bool* isNew,
        QQuickWindow::CreateTextureOption texture)
{
    auto* image = static_cast<QSGImageNode*>(node);
    if (picture.isNull()) {
        delete image;
        return nullptr;
    }
    QQuickWindow* const window = item.window();
    if (!image) {
        image = window->createImageNode();
        image->setOwnsTexture(true);
        // Where a pixel of the picture is no whole one of the screen.
        image->setFiltering(QSGTexture::Linear);
        *isNew = true;
    }
    if (*isNew)
        image->setTexture(window->createTextureFromImage(picture, texture));
    *isNew = false;
    image->setRect(item.boundingRect());
    return image;
}

} // namespace uiutils
