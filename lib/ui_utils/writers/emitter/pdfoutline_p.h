#pragma once

#include <QString>
#include <QVector>

namespace uiutils::pdf {

class PdfOutput;

/// A line of the outline that readers show beside the pages.
struct OutlineEntry
{
    /// Shown with spaces in place of control characters, and at most 200 characters of it.
    QString title;
    /// 0 for the outermost. An entry of a higher level than the one before is nested one level deeper, whatever the
    /// number.
    int level = 0;
    /// From 0.
    int page = 0;
    /// Points from the page's lower edge.
    qreal height = 0;
};

/// Writes the outline of a file with these pages. Returns its object, 0 without entries.
int writeOutline(PdfOutput& output, const QVector<OutlineEntry>& entries, const QVector<int>& pages);

} // namespace uiutils::pdf
