#pragma once

#include "writers/pages/reporttext.h"

/// The heading of a section. It is on the same page as what follows it.
class UIUTILS_EXPORT ReportHeader final : public ReportText
{
public:
    /// Levels below 1 and above 6 count as 1 and 6.
    ReportHeader(int level, const QString& text);
    ~ReportHeader() override;

    void measure(const uiutils::PageStyle& style, const QSizeF& page) override;
    bool keepsWithNext() const override { return true; }
    QString outlineTitle() const override { return text(); }
    int headingLevel() const override { return m_level; }

private:
    int m_level;
};
