#pragma once

#include "check/filefindings.h"
#include "check/regexcheck.h"
#include "check/servicedocument.h"

namespace uiutils::check {

/// What is wrong in the `attributes` of an item: formatter, expression, entry field, plots.
void checkAttributes(FileFindings* findings, const ServiceItem& item, RegexCheck* regexes);

} // namespace uiutils::check
