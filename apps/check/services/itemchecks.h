#pragma once

#include "check/services/regexcheck.h"
#include "check/services/servicedocument.h"

namespace uiutils::check {

/// What is wrong in the items of the file, each taken by itself.
void checkItems(ServiceDocument* document, RegexCheck* regexes);

} // namespace uiutils::check
