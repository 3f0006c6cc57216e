#pragma once

#include <QString>
#include <QVariant>

#include <functional>

namespace uiutils {

class NodeReader;

/// In which language a page is read aloud, and to which side its lines begin.
struct PageLanguage
{
    /// As BCP 47 has it: "de-CH".
    QString tag;
    bool isRightToLeft = false;

    /// "rtl" or "ltr".
    QString direction() const;
};

/// The language of a page. `tag` and `direction` ("rtl" or "ltr") are what the report says of itself. An empty or
/// unusable tag means the language of the default QLocale; an empty or unknown direction means that of a usable tag,
/// else that of the title's first letter.
PageLanguage pageLanguage(const QString& tag, const QString& direction, const QString& title);

/// The same with the values of "language" and "direction" that the caller sets, or else the report.
PageLanguage pageLanguage(
        const std::function<QVariant(const QString& name)>& attribute, const NodeReader& report, const QString& title);

} // namespace uiutils
