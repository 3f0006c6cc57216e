#pragma once

#include "core/uiutils_export.h"

#include <QDateTime>
#include <QString>

class ReportTemplate;

namespace uiutils {

/// How a whole test came out.
enum class ReportStatus { Unknown, Pass, Marginal, Fail, NotCompleted };

/// What a plain text shows and how wide it is. Switches of content are named as those of TemplateToHtmlWriter.
struct TextLayout
{
    /// In columns of a letter; taken as 20 to 1,000.
    int width = 80;
    /// Null: the document's own title.
    QString title;
    /// When the report was made; shown when it is valid.
    QDateTime timestamp;
    /// Shown when it is known.
    ReportStatus status = ReportStatus::Unknown;

    bool includeJobInfo = false;
    bool includeCustomerInfoTop = false;
    bool includeTechnicianInfoTop = false;
    bool includeCustomerInfoEnd = false;
    bool includeTechnicianInfoEnd = false;
    bool showSoftwareRevs = true;
    bool showHardwareRevs = true;
};

/// The report as a plain text that people read, print with letters of one width or send in a mail: headings, tables in
/// columns, statuses in words, plots as the extents of their curves. docs/text-report.md describes it.
///
/// Lines end in "\n", the last one too. Nothing fails: what is missing reads as empty.
UIUTILS_EXPORT QString reportText(const ReportTemplate& document, const TextLayout& layout = {});

/// The document itself as indented JSON text that ends in "\n": an object without keys for an empty document.
UIUTILS_EXPORT QString reportJson(const ReportTemplate& document);

} // namespace uiutils
