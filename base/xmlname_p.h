#pragma once

#include <QString>

namespace uiutils {

/// `name` as an XML element or attribute name: letters, digits, "_", "-" and "." stay, every other character becomes
/// "_", and a name that begins with a digit, "-", "." or the reserved "xml" gets a "_" in front. A colon becomes "_"
/// too, so that no name has a namespace prefix. A name that is one comes back as
/// the same shared string, an empty one empty.
QString xmlName(const QString& name);

/// `text` as an XML comment may hold it: hyphens in a row are parted by blanks, and so is one at the end from the end.
QString xmlComment(const QString& text);

} // namespace uiutils
