#pragma once

#include "writers/emitter/pdfdocument_p.h"
#include "writers/pages/pageflow_p.h"
#include "writers/pages/pageframe_p.h"
#include "writers/pages/pagestyle_p.h"
#include "writers/pages/titleblock_p.h"

#include <QImage>
#include <QPageLayout>

#include <functional>
#include <optional>

namespace uiutils {

/// What all pages of a file share.
struct PageSettings
{
    TitleBlock::Contents titleBlock;
    PageFrame::Texts frame;
    /// All but the size of pages and the units, which the printer sets.
    pdf::DocumentSettings document;
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
};

/// Prints items on the pages of one PDF file.
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

    /// Prints to an open device. `Failed` means that it did not take the file, or that a font cannot be embedded, for
    /// the reason in `error`; what was written is then of no use.
    Outcome print(QIODevice* device, QString* error);

private:
    bool layOut();
    void warnOfUnreadableIcons() const;
    static void warnOfMissing(const QString& characters);
    Outcome printPages(pdf::DocumentWriter& writer, QString* error);
    void drawPage(PageCanvas& canvas, int page);
    void addToOutline(const PlacedPortion& placed);

    PageFrame::Texts m_frameTexts;
    QPageLayout::Orientation m_orientation;
    Progress m_progress;
    pdf::DocumentSettings m_document;
    // Where there is a resolution, but nothing is painted.
    QImage m_device;
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
