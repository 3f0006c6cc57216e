#include "writers/pages/reportimage.h"

#include "writers/pages/pagecanvas_p.h"
#include "writers/pages/pageimage_p.h"
#include "writers/pages/pagestyle_p.h"

#include <QCoreApplication>

ReportImage::ReportImage(const QByteArray& encoded, qreal pixelsOfAPoint)
    : m_encoded(encoded)
    , m_naturalSize(QSizeF(uiutils::encodedSize(encoded)) / qMax(pixelsOfAPoint, 0.01))
{
}

ReportImage::~ReportImage() = default;

void ReportImage::measure(const uiutils::PageStyle& style, const QSizeF& page)
{
    m_spaceAbove = style.points(8);
    m_size = QSizeF(style.points(m_naturalSize.width()), style.points(m_naturalSize.height()));
    if (m_size.width() > page.width() || m_size.height() > page.height())
        m_size.scale(page, Qt::KeepAspectRatio);
}

ReportItem::Position ReportImage::end() const
{
    return m_naturalSize.isEmpty() ? Position() : Position {1, 0};
}

ReportItem::Portion ReportImage::split(const Position& begin, qreal room, bool isWholePage) const
{
    const bool fits = m_size.height() <= room || isWholePage;
    return fits ? Portion {begin, end(), qMin(m_size.height(), qMax(room, 0.0))} : Portion {begin, begin, 0};
}

void ReportImage::draw(uiutils::PageCanvas& canvas, const Portion& portion, const QPointF& topLeft) const
{
    // Below a heading there is less space than on an empty page.
    const auto mark = canvas.structure().figure(QCoreApplication::translate("ReportPDF", "Plot"));
    canvas.drawImage(m_encoded, QRectF(topLeft, m_size.scaled({m_size.width(), portion.height}, Qt::KeepAspectRatio)));
}
