#pragma once

#include <QString>

namespace uiutils {

/// `text` as a text or attribute value of XML or HTML may hold it: control characters but for tab and line ends go,
/// a surrogate without its partner and the non-characters U+FFFE and U+FFFF become U+FFFD. A clean text comes back
/// as the same shared string. Escaping is left to the stream writer.
QString markupText(const QString& text);

} // namespace uiutils
