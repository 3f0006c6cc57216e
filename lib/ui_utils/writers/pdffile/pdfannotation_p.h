#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace uiutils::pdf {

/// A line of the outline that readers show beside the pages.
struct OutlineEntry
{
    /// Shown with spaces in place of control characters, and at most 200 characters of it.
    QString title;
    /// 0 for the outermost. An entry of a higher level than the one before is nested one level deeper, whatever the
    /// number.
    int level = 0;
    /// From 0. A number after the last page leads to the last page.
    int page = 0;
    /// Points from the page's top edge.
    qreal top = 0;
};

/// What a printer does not write into a PDF file.
struct Annotation
{
    /// An empty one removes the entry.
    QString title;
    QString author;
    QString subject;
    QString producer;
    /// In the order of the document. Replaces the outline of the file; an empty one leaves it as it is.
    QVector<OutlineEntry> outline;
};

/// The file at `source`, a path on the disk, with the annotation. This process must have printed the file itself,
/// because it is not tried first. Returns the bytes of the complete new file; returns nothing and sets `error` if the
/// file is not complete or cannot be read.
QByteArray annotated(const QString& source, const Annotation& annotation, QString* error);

} // namespace uiutils::pdf
