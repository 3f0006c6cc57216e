#pragma once

#include <QString>

namespace uiutils {

/// `name` as an XML element or attribute name: letters, digits, "_", "-" and "." stay, every other character becomes
/// "_", and "_" is put before a name that begins with a digit, "-", "." or the reserved "xml". A colon becomes "_" too,
/// so that no name has a namespace prefix. A valid name is returned as the same shared string, an empty one stays
/// empty.
QString xmlName(const QString& name);

/// `text` as the contents of an XML comment: blanks separate consecutive hyphens, and a final hyphen from the end.
QString xmlComment(const QString& text);

} // namespace uiutils
