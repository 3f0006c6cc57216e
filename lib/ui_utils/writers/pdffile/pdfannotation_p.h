#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace uiutils::pdf {

/// A line of the outline that readers show beside the pages.
struct OutlineEntry
{
    /// Shown with control characters as blanks, and no more than 200 characters of it.
    QString title;
    /// 0 for the outermost. An entry that lies deeper than the one before nests one deeper, whatever it says.
    int level = 0;
    /// From 0. One behind the last page leads there.
    int page = 0;
    /// Points from the page's top edge.
    qreal top = 0;
};

/// What a printer leaves out of a PDF file.
struct Annotation
{
    /// An empty one takes the entry away.
    QString title;
    QString author;
    QString subject;
    QString producer;
    /// In the order of the document. Takes the place of the outline that the file has; an empty one leaves
    /// it.
    QVector<OutlineEntry> outline;
};

/// The file at `source`, a path on disk, with the annotation. The file must be one that this process has
/// printed itself: it is not tried out first. Returns the bytes of the whole new file, or nothing and sets
/// `error` when the file is not whole or cannot be read.
QByteArray annotated(const QString& source, const Annotation& annotation, QString* error);

} // namespace uiutils::pdf
