#pragma once

#include "check/services/regexcheck.h"
#include "check/services/servicedocument.h"

namespace uiutils::check {

/// A value that the file gives the item, and the reason why it does not suit.
struct ValueProblem
{
    const JsonNode* place = nullptr;
    /// A sentence.
    QString message;
};

/// Of values outside the item's limits and choices, and texts that its expression rejects, the first; without a message
/// if the value suits, or is of another type.
ValueProblem unsuitableValue(const ServiceItem& item, const JsonNode& value, RegexCheck* regexes);

/// Why the value is not of the item's type, a sentence; empty if it is, and for null, which stands for no value.
QString typeProblem(const ServiceItem& item, const JsonNode& value);

/// "the limits 1 to 30", with what the item has of them; empty without limits.
QString limitWords(const ServiceItem& item);

} // namespace uiutils::check
