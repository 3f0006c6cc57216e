#pragma once

#include "measurement.h"

#include <uiutils/reportdrawing.h>

/// A drawing of its own in the PDF file: the fiber as a line, with its events where they are.
class LinkDrawing final : public ReportDrawing
{
public:
    explicit LinkDrawing(const QVector<Event>& events)
        : m_events(events)
    {
    }

    QString outlineTitle() const override;

protected:
    qreal height(const QSizeF& page) const override { return page.height() * 2 / 3; }
    void paint(QPainter& painter, const QSizeF& size) const override;

private:
    void paintEvent(QPainter& painter, const Event& event, const QPointF& place) const;

    const QVector<Event> m_events;
};
