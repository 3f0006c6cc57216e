#pragma once

#include <QRectF>
#include <QString>

namespace uiutils {

class PageCanvas;
class PageStyle;

/// What surrounds the body of every page: a header line on all but the first, and the footer.
class PageFrame
{
public:
    struct Texts
    {
        QString documentTitle;
        QString title;
        QString unitId;
        QString timestamp;
    };

    PageFrame(const PageStyle& style, const QSizeF& paper, const Texts& texts);

    /// The space that the frame leaves for the body.
    QRectF body() const { return m_body; }

    /// `page` counts from 1. To be drawn before and after the body, because readers copy text in the order of drawing.
    void drawHeader(PageCanvas& canvas, int page) const;
    void drawFooter(PageCanvas& canvas, int page, int pageCount) const;

private:
    void shortenTexts();
    /// Texts at the left, in the middle and at the right of a line; `kind` says for readers what the line is.
    void drawLine(PageCanvas& canvas, const char* kind, qreal top, const QString& beginning, const QString& middle,
            const QString& ending) const;

    const PageStyle& m_style;
    Texts m_texts;
    QString m_unit;
    qreal m_left;
    qreal m_width;
    qreal m_headerTop;
    qreal m_footerTop;
    QRectF m_body;
};

} // namespace uiutils
