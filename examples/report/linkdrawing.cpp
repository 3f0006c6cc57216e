#include "linkdrawing.h"

#include <uiutils/status.h>

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>

namespace {

QColor colorOf(int status)
{
    using namespace uiutils;
    return QColor(status == Status::Fail ? 0xb3261e : status == Status::Marginal ? 0xa86800 : 0x1b7a43);
}

} // namespace

QString LinkDrawing::outlineTitle() const
{
    return QCoreApplication::translate("LinkDrawing", "The fiber");
}

void LinkDrawing::paint(QPainter& painter, const QSizeF& size) const
{
    const QPen ink = painter.pen();
    QFont title = painter.font();
    title.setPixelSize(18);
    painter.save();
    painter.setFont(title);
    painter.drawText(QRectF(0, 0, size.width(), 30), Qt::AlignLeft | Qt::AlignVCenter, outlineTitle());
    painter.restore();

    // From top to bottom, with space above and below.
    const QPointF top(80, 60);
    const QPointF bottom(80, size.height() - 40);
    painter.setPen(QPen(ink.color(), 2));
    painter.drawLine(top, bottom);
    painter.setPen(ink);
    double length = 0;
    for (const Event& event : m_events)
        length = std::max(length, event.kilometre);
    for (const Event& event : m_events)
        paintEvent(painter, event, top + (bottom - top) * (length > 0 ? event.kilometre / length : 0));
}

void LinkDrawing::paintEvent(QPainter& painter, const Event& event, const QPointF& place) const
{
    painter.fillRect(QRectF(place.x() - 6, place.y() - 6, 12, 12), colorOf(event.status));
    const QRectF line(0, place.y() - 10, place.x() - 14, 20);
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, shown(event.kilometre, QStringLiteral("km")));
    painter.drawText(line.translated(place.x() + 14, 0).adjusted(0, 0, 300, 0), Qt::AlignLeft | Qt::AlignVCenter,
            event.kind + QStringLiteral(", ") + shown(event.loss, QStringLiteral("dB")));
}
