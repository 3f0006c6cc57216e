#pragma once

#include "writers/pdffile/pdfsource_p.h"

#include <optional>

namespace uiutils::pdf {

/// What the end of a file says, which is all that is needed to describe the file anew by adding to it.
struct Tail
{
    /// The bytes of the file without what an earlier change of this kind has added.
    int size = 0;
    /// Where the table of these bytes is, and how many numbers of objects it has.
    qint64 tablePosition = 0;
    qint64 objectCount = 0;
    /// The entries that every later table must repeat.
    Dictionary trailer;
    int informationNumber = 0;
    Dictionary information;
    /// The XMP packet, if the file has one that the library made; otherwise the number is 0.
    int metadataNumber = 0;
    QByteArray metadata;
};

/// The end of a file with these contents. Nothing if anything is different from what the library writes: a table that
/// is not a stream or does not have all objects, more than one change, an encrypted file, document information or
/// catalog packed in an object stream, an object that is not where the table says.
std::optional<Tail> readTail(const QByteArray& contents);

} // namespace uiutils::pdf
