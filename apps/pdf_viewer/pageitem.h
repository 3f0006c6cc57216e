#pragma once

#include "renderjob.h"
#include "viewerdocument.h"

#include <QImage>
#include <QPointer>
#include <QQuickItem>
#include <QTimer>

namespace uiutils::viewer {

/// A page as a picture that fills the item. While the item's size changes, the present picture is stretched; a sharp
/// one replaces it when the size is stable.
class PageItem : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(uiutils::viewer::ViewerDocument* document READ document WRITE setDocument NOTIFY documentChanged)
    Q_PROPERTY(int page READ page WRITE setPage NOTIFY pageChanged)
    Q_PROPERTY(Status status READ status NOTIFY statusChanged)

public:
    enum Status {
        /// Nothing to show yet.
        Drawing,
        /// A picture is shown; a sharper one may be on its way.
        Drawn,
        /// The page cannot be drawn.
        Failed,
    };
    Q_ENUM(Status)

    explicit PageItem(QQuickItem* parent = nullptr);
    ~PageItem() override;

    ViewerDocument* document() const { return m_document; }
    /// Not owned. Pages are drawn when its state is Ready.
    void setDocument(ViewerDocument* document);
    /// Counted from 0.
    int page() const { return m_page; }
    void setPage(int page);
    Status status() const { return m_status; }
    /// Size of the present picture in pixels.
    QSize pictureSize() const { return m_picture.size(); }

Q_SIGNALS:
    void documentChanged();
    void pageChanged();
    void statusChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;
    void geometryChanged(const QRectF& now, const QRectF& before) override;
    void componentComplete() override;

private:
    void requestSoon();
    void request();
    void take(const QImage& picture);
    void startOver();
    void setStatus(Status status);
    QSize wantedPixels() const;

    QPointer<ViewerDocument> m_document;
    int m_page = -1;
    Status m_status = Drawing;
    QImage m_picture;
    bool m_isPictureNew = false;
    QSize m_requested;
    RenderJobPointer m_job;
    QTimer m_rest;
    QTimer m_patience;
};

} // namespace uiutils::viewer
