#pragma once

#include "writers/pages/pageflow_p.h"
#include "writers/pages/pageframe_p.h"
#include "writers/pages/pagestyle_p.h"
#include "writers/pages/titleblock_p.h"
#include "writers/pdffile/pdfannotation_p.h"

#include <QPdfWriter>

#include <functional>
#include <optional>

namespace uiutils {

/// What all pages of a file share.
struct PageSettings
{
    TitleBlock::Contents titleBlock;
    PageFrame::Texts frame;
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
};

/// Prints items on the pages of one PDF file, as the printer device writes it. The caller has to check whether the file
/// is complete.
class PagePrinter
{
public:
    /// Called with the number of pages that are printed; returns false to stop the printer.
    using Progress = std::function<bool(int page, int pageCount)>;

    /// The items remain the caller's and must outlive the printer.
    PagePrinter(const PageSettings& settings, const QList<ReportItem*>& items, const Progress& progress);
    ~PagePrinter();
    Q_DISABLE_COPY_MOVE(PagePrinter)

    enum Outcome { Printed, Stopped, Failed };

    /// Prints to `path` on the disk. `Failed` means that the device could not write.
    Outcome print(const QString& path);

    /// The headings and tables that were printed.
    const QVector<pdf::OutlineEntry>& outline() const { return m_outline; }

private:
    void prepare(const QString& path);
    bool layOut();
    void warnOfUnreadableIcons() const;
    Outcome printPages();
    void drawPage(PageCanvas& canvas, int page);
    void addToOutline(const PlacedPortion& placed);

    PageFrame::Texts m_frameTexts;
    QPageLayout::Orientation m_orientation;
    Progress m_progress;
    std::optional<QPdfWriter> m_device;
    TitleBlock m_titleBlock;
    QList<ReportItem*> m_items;
    std::optional<PageStyle> m_style;
    std::optional<PageFrame> m_frame;
    QVector<PlacedPortion> m_placed;
    int m_nextPortion = 0;
    int m_pageCount = 0;
    int m_headingLevel = 0;
    QVector<pdf::OutlineEntry> m_outline;
};

} // namespace uiutils
