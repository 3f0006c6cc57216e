#pragma once

#include "writers/pages/reportitem.h"

#include <QByteArray>

/// An image of a printed report: a plot. It is shown in its own size unless that does not fit on a page together with
/// the heading above it.
class UIUTILS_EXPORT ReportImage : public ReportItem
{
public:
    /// `encoded` are the contents of a file in a format that Qt reads. `pixelsOfAPoint` is the number of its pixels per
    /// point on paper. Data that is not an image, or one of more than 50 million pixels, takes no space.
    explicit ReportImage(const QByteArray& encoded, qreal pixelsOfAPoint = 1);
    ~ReportImage() override;

    /// The contents that the item was made of.
    QByteArray encoded() const { return m_encoded; }

    void measure(const uiutils::PageStyle& style, const QSizeF& page) override;
    Position end() const override;
    Portion split(const Position& begin, qreal room, bool isWholePage) const override;
    void draw(uiutils::PageCanvas& canvas, const Portion& portion, const QPointF& topLeft) const override;
    qreal spaceAbove() const override { return m_spaceAbove; }

private:
    QByteArray m_encoded;
    /// In points.
    QSizeF m_naturalSize;
    QSizeF m_size;
    qreal m_spaceAbove = 0;
};
