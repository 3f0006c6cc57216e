#pragma once

#include <QList>
#include <QString>
#include <QVariant>

#include <functional>

class Style;

/// The default look of a page, and the style sheet that follows from its attributes.
namespace uiutils {

/// The switches of style and content that HtmlStreamWriter begins with; docs/html-report.md lists them.
QVariantMap defaultPageAttributes();

/// The rules of a page's style sheet. `text` returns the value of an attribute. The caller owns the rules.
QList<Style*> pageStyles(const std::function<QString(const QString&)>& text);

} // namespace uiutils
