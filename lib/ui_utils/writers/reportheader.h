#pragma once

#include "writers/reportitem.h"

#include <memory>

namespace uiutils {
class TextBlock;
}

/// The heading of a section. It stands on the page of what follows it.
class UIUTILS_EXPORT ReportHeader : public ReportItem
{
public:
    /// Levels below 1 and above 3 are taken as 1 and 3.
    ReportHeader(int level, const QString& text);
    ~ReportHeader() override;

    QString text() const { return m_text; }

    void measure(const uiutils::PageStyle& style, const QSizeF& page) override;
    void release() override;
    Position end() const override;
    Portion split(const Position& begin, qreal room, bool isWholePage) const override;
    void draw(uiutils::PageCanvas& canvas, const Portion& portion, const QPointF& topLeft) const override;
    qreal spaceAbove() const override;
    bool keepsWithNext() const override { return true; }
    QString outlineTitle() const override { return m_text; }
    int headingLevel() const override { return m_level; }

private:
    int m_level;
    QString m_text;
    std::unique_ptr<uiutils::TextBlock> m_block;
};
