#pragma once

#include <QCoreApplication>

namespace uiutils {

/// Under which translators find what services say: labels, choices, units and errors.
constexpr char serviceContext[] = "ServiceItem";

/// A text of a service in the language of this process; as the service gives it where no catalogue has it. The item's
/// id, as the comment of a message, tells equal texts apart; a message without a comment counts for all items.
inline QString translatedServiceText(const QString& text, const QString& id = QString())
{
    if (text.isEmpty())
        return text;
    return QCoreApplication::translate("ServiceItem", text.toUtf8().constData(), id.toUtf8().constData());
}

} // namespace uiutils
