#pragma once

#include "writers/pages/reportitem.h"

#include <memory>

namespace uiutils {
class TextBlock;
}

/// A paragraph of a printed report. It may be split between lines, but no single line is alone on a page.
class UIUTILS_EXPORT ReportText : public ReportItem
{
public:
    /// A paragraph of plain text; line feeds begin new lines.
    explicit ReportText(const QString& text);
    ~ReportText() override;

    /// The text, as it was given.
    QString text() const { return m_text; }

    void measure(const uiutils::PageStyle& style, const QSizeF& page) override;
    void release() override;
    Position end() const override;
    Portion split(const Position& begin, qreal room, bool isWholePage) const override;
    void draw(uiutils::PageCanvas& canvas, const Portion& portion, const QPointF& topLeft) const override;
    qreal spaceAbove() const override;

protected:
    /// Sets the text as measure() has laid it out.
    void setBlock(std::unique_ptr<uiutils::TextBlock> block);

private:
    QString m_text;
    std::unique_ptr<uiutils::TextBlock> m_block;
};
