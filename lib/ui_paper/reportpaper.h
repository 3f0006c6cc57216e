#pragma once

#include "ui_paper/paper_export.h"

#include <QObject>
#include <QString>

#include <memory>

class QPrinter;
class ReportPDF;

namespace uiutils {

class ReportPaperPrivate;

/// Prints the pages of a ReportPDF on paper, to a QPrinter that the application has set up: the layout is that of the
/// files, on the printer's paper.
class UIUTILSPAPER_EXPORT ReportPaper : public QObject
{
    Q_OBJECT

public:
    explicit ReportPaper(QObject* parent = nullptr);
    ~ReportPaper() override;

    /// Prints what `pages` shows as it is set now. The printer decides size and orientation of the paper, resolution,
    /// range, order and number of copies; nothing is printed nearer than 28 points to the paper's edge, whatever the
    /// printer's margins are. `printer` must not be in use and remains the caller's, as do the items of `pages`.
    ///
    /// Returns whether the printer has taken all pages of its range. Otherwise the job is aborted, and `error` says
    /// why; it is empty after cancel(). What becomes of pages that the printer has taken, only the printer knows. Does
    /// not return to the event loop. A slot of progressChanged() may delete the object, which cancels the job.
    [[nodiscard]] bool print(const ReportPDF& pages, QPrinter& printer, QString* error = nullptr);

public Q_SLOTS:
    /// Stops printing before the next page. To be called by a slot of progressChanged().
    void cancel();

Q_SIGNALS:
    /// `sheet` sheets of `sheetCount` are printed; copies that the printer makes by itself do not count. While the
    /// items are measured, both are 0.
    void progressChanged(int sheet, int sheetCount);

private:
    const std::unique_ptr<ReportPaperPrivate> d;
};

} // namespace uiutils
