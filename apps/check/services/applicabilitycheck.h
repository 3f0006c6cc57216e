#pragma once

#include "check/services/servicenames.h"

namespace uiutils::check {

/// What is wrong in the expressions that say when items have a meaning: those that cannot be read, name what does not
/// exist, compare with what never comes, or lead back to their own item.
void checkApplicability(const Documents& documents, const ServiceNames& names);

} // namespace uiutils::check
