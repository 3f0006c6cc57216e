#include "writers/pages/drawnicon_p.h"

#include "core/status.h"

#include <QPainter>

namespace uiutils {

namespace {

/// The side of a drawing in its own units, those of the pictures that are shipped, and in pixels.
constexpr int side = 40;
constexpr int pixels = 120;

void stroke(QPainter& painter, const QVector<QPointF>& line, const QColor& color)
{
    painter.setPen(QPen(color, 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF(line));
}

void drawPass(QPainter& painter)
{
    painter.setBrush(QColor(0x1d8348));
    painter.drawEllipse(QPointF(20, 20), 19, 19);
    stroke(painter, {{10.5, 21}, {17.5, 28}, {30, 13.5}}, Qt::white);
}

void drawMarginal(QPainter& painter)
{
    const QColor amber(0xf0a202);
    const QColor mark(0x1f1a0c);
    const QVector<QPointF> triangle {{20, 4}, {37, 34.5}, {3, 34.5}, {20, 4}};
    painter.setBrush(amber);
    painter.drawPolygon(QPolygonF(triangle));
    stroke(painter, triangle, amber);
    stroke(painter, {{20, 13.5}, {20, 23}}, mark);
    painter.setPen(Qt::NoPen);
    painter.setBrush(mark);
    painter.drawEllipse(QPointF(20, 31), 2.9, 2.9);
}

void drawFail(QPainter& painter)
{
    painter.setBrush(QColor(0xb3261e));
    painter.drawRoundedRect(QRectF(1, 1, 38, 38), 8, 8);
    stroke(painter, {{12, 12}, {28, 28}}, Qt::white);
    stroke(painter, {{28, 12}, {12, 28}}, Qt::white);
}

QImage drawn(void (*draw)(QPainter&))
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(qreal(pixels) / side, qreal(pixels) / side);
    painter.setPen(Qt::NoPen);
    draw(painter);
    return image;
}

} // namespace

QImage drawnStatusIcon(int status)
{
    switch (status) {
    case Status::Pass:
        return drawn(drawPass);
    case Status::Marginal:
        return drawn(drawMarginal);
    case Status::Fail:
        return drawn(drawFail);
    default:
        return QImage();
    }
}

} // namespace uiutils
