#include "writers/plotimage.h"

#include "core/durablefile.h"
#include "core/itemids.h"
#include "core/paths.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QBuffer>
#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QVariant>
#include <QVector>
#include <QtMath>

#include <algorithm>

namespace {

const QLatin1String xEnd("_x:doubleARRAY:");
const QLatin1String yEnd("_y:doubleARRAY:");

/// The finite points of the service's first curve.
QVector<QPointF> firstCurve(const QString& service)
{
    QVector<QPointF> points;
    const KIVClientInterface* client = KIVClientInterface::getSessionBusClient(service);
    if (!client)
        return points;
    const QStringList ids = client->getItemIds(uiutils::itemids::result);
    for (const QString& id : ids) {
        const KIVClientItem* yItem
                = id.endsWith(xEnd) ? client->getItem(id.left(id.size() - xEnd.size()) + yEnd) : nullptr;
        if (!yItem)
            continue;
        const QVariantList xs = client->getItem(id)->getValue().toList();
        const QVariantList ys = yItem->getValue().toList();
        for (int i = 0; i < qMin(xs.size(), ys.size()); ++i) {
            const QPointF point(xs.at(i).toDouble(), ys.at(i).toDouble());
            if (qIsFinite(point.x()) && qIsFinite(point.y()))
                points += point;
        }
        break;
    }
    return points;
}

/// The rectangle that the points span, widened where it has no extent.
QRectF extentOf(const QVector<QPointF>& points)
{
    if (points.isEmpty())
        return QRectF(0, 0, 1, 1);
    const auto xs = std::minmax_element(
            points.cbegin(), points.cend(), [](const QPointF& a, const QPointF& b) { return a.x() < b.x(); });
    const auto ys = std::minmax_element(
            points.cbegin(), points.cend(), [](const QPointF& a, const QPointF& b) { return a.y() < b.y(); });
    QRectF extent(QPointF(xs.first->x(), ys.first->y()), QPointF(xs.second->x(), ys.second->y()));
    if (extent.width() <= 0)
        extent.adjust(-0.5, 0, 0.5, 0);
    if (extent.height() <= 0)
        extent.adjust(0, -0.5, 0, 0.5);
    return extent;
}

} // namespace

PlotImage::PlotImage()
{
    setSize(0, 0);
}

void PlotImage::setCurveBackground(const QString& color)
{
    m_background = QColor(color);
    if (!m_background.isValid())
        m_background = Qt::white;
}

void PlotImage::setSize(int width, int height)
{
    m_size = QSize(width < 1 ? 600 : qBound(50, width, 4000), height < 1 ? 400 : qBound(50, height, 4000));
}

bool PlotImage::write(const QString& path)
{
    m_data.clear();
    QBuffer buffer(&m_data);
    buffer.open(QIODevice::WriteOnly);
    draw().save(&buffer, "PNG");
    return uiutils::writeFileDurably(uiutils::onDisk(path), m_data);
}

QImage PlotImage::draw() const
{
    const QVector<QPointF> points = firstCurve(m_service);
    const QRectF extent = extentOf(points);

    QImage image(m_size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QFontMetrics metrics = painter.fontMetrics();
    const QLocale locale;
    const QString labels[] = {locale.toString(extent.left()), locale.toString(extent.right()),
            locale.toString(extent.top()), locale.toString(extent.bottom())};
    const int leftMargin = qMax(metrics.horizontalAdvance(labels[2]), metrics.horizontalAdvance(labels[3])) + 12;
    const QRectF frame = QRectF(QPointF(), m_size).adjusted(leftMargin, metrics.height(), -12, -metrics.height() - 8);

    painter.fillRect(frame, m_background);
    painter.setPen(Qt::darkGray);
    painter.drawRect(frame);
    painter.setPen(Qt::black);
    painter.drawText(QRectF(frame.left(), frame.bottom() + 4, frame.width(), metrics.height()), Qt::AlignLeft, labels[0]);
    painter.drawText(
            QRectF(frame.left(), frame.bottom() + 4, frame.width(), metrics.height()), Qt::AlignRight, labels[1]);
    painter.drawText(QRectF(0, frame.bottom() - metrics.height(), frame.left() - 6, metrics.height()), Qt::AlignRight,
            labels[2]);
    painter.drawText(QRectF(0, frame.top(), frame.left() - 6, metrics.height()), Qt::AlignRight, labels[3]);

    QVector<QPointF> curve;
    curve.reserve(points.size());
    for (const QPointF& point : points) {
        curve += QPointF(frame.left() + (point.x() - extent.left()) / extent.width() * frame.width(),
                frame.bottom() - (point.y() - extent.top()) / extent.height() * frame.height());
    }
    painter.setClipRect(frame);
    painter.setPen(QPen(QColor(0, 104, 155), 1.5));
    painter.drawPolyline(curve.constData(), curve.size());
    return image;
}
