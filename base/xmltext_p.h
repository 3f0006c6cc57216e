#pragma once

#include <QString>

namespace uiutils {

/// `text` as a text or attribute value of XML or HTML: control characters except tab and line ends are left out,
/// unpaired surrogates and the non-characters U+FFFE and U+FFFF become U+FFFD. A clean text is returned as the same
/// shared string. Escaping is left to the stream writer.
QString markupText(const QString& text);

} // namespace uiutils
