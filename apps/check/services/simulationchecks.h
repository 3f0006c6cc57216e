#pragma once

#include "check/services/regexcheck.h"
#include "check/services/servicedocument.h"

namespace uiutils::check {

/// What is wrong in what the file says of moving items, judged values, actions, and what happens when.
void checkSimulation(ServiceDocument* document, RegexCheck* regexes);

} // namespace uiutils::check
