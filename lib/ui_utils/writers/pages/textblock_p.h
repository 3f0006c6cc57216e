#pragma once

#include "writers/pages/reportitem.h"
#include "writers/pages/wrappedtext_p.h"

namespace uiutils {

/// Running text of one font and colour over the width of a page, split between its lines.
class TextBlock
{
public:
    /// `font` must outlive the block.
    TextBlock(const PageFont& font, const QString& text, qreal width, const QColor& color);

    /// What the text is in the structure of the file: a literal, such as "/H1"; "/P" by default.
    void setTag(const char* tag) { m_tag = tag; }
    /// What pictures that follow are about.
    void setHeading(const QString& heading) { m_heading = heading; }
    void setSpaceAbove(qreal space) { m_spaceAbove = space; }
    /// A rule below the last line.
    void setRuleBelow(qreal thickness, qreal distance);

    ReportItem::Position end() const { return {m_lines.lineCount(), 0}; }
    ReportItem::Portion split(const ReportItem::Position& begin, qreal room, bool isWholePage) const;
    void draw(PageCanvas& canvas, const ReportItem::Portion& portion, const QPointF& topLeft) const;
    qreal spaceAbove() const { return m_spaceAbove; }

private:
    qreal ruleHeight() const { return m_ruleThickness + m_ruleDistance; }

    const PageFont& m_font;
    WrappedText m_lines;
    qreal m_width;
    QColor m_color;
    Qt::Alignment m_alignment;
    const char* m_tag = "/P";
    QString m_heading;
    qreal m_spaceAbove = 0;
    qreal m_ruleThickness = 0;
    qreal m_ruleDistance = 0;
};

} // namespace uiutils
