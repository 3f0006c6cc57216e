#pragma once

#include "check/services/filefindings.h"
#include "check/services/regexcheck.h"
#include "check/services/servicedocument.h"

namespace uiutils::check {

/// What is wrong in the `attributes` of an item: formatter, expression, entry field, plots.
void checkAttributes(FileFindings* findings, const ServiceItem& item, RegexCheck* regexes);

} // namespace uiutils::check
