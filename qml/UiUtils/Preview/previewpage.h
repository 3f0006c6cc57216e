#pragma once

#include "report/reportpreview.h"

#include <QImage>
#include <QPointer>
#include <QQuickItem>
#include <QTimer>

namespace uiutils {

/// A page of a ReportPreview, which fills the item; give the item the proportions of the page. It is drawn when it
/// comes into sight. While the item's size changes, the present picture is stretched; a sharp one replaces it when the
/// size is stable. In QML: PreviewPage.
class PreviewPage : public QQuickItem
{
    Q_OBJECT
    /// Whose page is shown; null by default. It stays the caller's.
    Q_PROPERTY(uiutils::ReportPreview* preview READ preview WRITE setPreview NOTIFY previewChanged)
    /// The number of the page, from 0; -1, no page, by default.
    Q_PROPERTY(int page READ page WRITE setPage NOTIFY pageChanged)

public:
    explicit PreviewPage(QQuickItem* parent = nullptr);
    ~PreviewPage() override;

    ReportPreview* preview() const { return m_preview; }
    void setPreview(ReportPreview* preview);
    int page() const { return m_page; }
    void setPage(int page);

Q_SIGNALS:
    void previewChanged();
    void pageChanged();

protected:
    void updatePolish() override;
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;
    void geometryChanged(const QRectF& now, const QRectF& before) override;

private:
    void startOver();
    QSize wantedPixels() const;

    QPointer<ReportPreview> m_preview;
    int m_page = -1;
    QImage m_picture;
    bool m_isPictureNew = false;
    QTimer m_rest;
};

} // namespace uiutils
