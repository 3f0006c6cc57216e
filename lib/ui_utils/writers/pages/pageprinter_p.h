#pragma once

#include "writers/emitter/pdfdocument_p.h"
#include "writers/pages/reportlayout_p.h"

#include <functional>

namespace uiutils {

/// What all pages of a report share.
struct PageSettings
{
    ReportLayout::Surroundings surroundings;
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    /// Of a file: all but the size of pages and the units, which the printer sets.
    pdf::DocumentSettings document;
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
    Outcome printPages(pdf::DocumentWriter& writer, QString* error);

    ReportLayout m_layout;
    pdf::DocumentSettings m_document;
    Progress m_progress;
};

} // namespace uiutils
