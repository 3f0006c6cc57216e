#pragma once

#include "core/uiutils_export.h"

#include <QDateTime>
#include <QString>

class ReportTemplate;

namespace uiutils {

/// The overall result of a test.
enum class ReportStatus { Unknown, Pass, Marginal, Fail, NotCompleted };

/// What a plain text shows and how wide it is. Switches of content are named as those of TemplateToHtmlWriter.
struct TextLayout
{
    /// In columns of one letter; limited to 20 to 1,000.
    int width = 80;
    /// Null: the document's own title.
    QString title;
    /// When the report was made; shown if it is valid.
    QDateTime timestamp;
    /// Shown if it is known.
    ReportStatus status = ReportStatus::Unknown;

    /// Whether the text has the active job.
    bool includeJobInfo = false;
    /// Whether the customer is above the results.
    bool includeCustomerInfoTop = false;
    /// Whether the technician is above the results.
    bool includeTechnicianInfoTop = false;
    /// Whether the customer is below the results.
    bool includeCustomerInfoEnd = false;
    /// Whether the technician is below the results.
    bool includeTechnicianInfoEnd = false;
    /// Whether the revisions of the software are listed.
    bool showSoftwareRevs = true;
    /// Whether the revisions of the hardware are listed.
    bool showHardwareRevs = true;
};

/// The report as a plain text that people read, print in a fixed-width font or send by mail: headings, tables in
/// columns, statuses in words, plots as the extents of their curves. docs/text-report.md describes it.
///
/// Lines end in "\n", the last one too. Nothing fails: what is missing reads as empty.
UIUTILS_EXPORT QString reportText(const ReportTemplate& document, const TextLayout& layout = {});

/// The document itself as indented JSON text that ends in "\n": an object without keys for an empty document.
UIUTILS_EXPORT QString reportJson(const ReportTemplate& document);

} // namespace uiutils
