#include "limit.h"

namespace uiutils::demo {

Status::Code Limit::judge(double value) const
{
    const bool isMet = kind == AtMost ? value <= bound : value >= bound;
    if (!isMet)
        return Status::Fail;
    const bool isMetWell = kind == AtMost ? value <= bound * (1 - marginalShare) : value >= bound * (1 + marginalShare);
    return isMetWell ? Status::Pass : Status::Marginal;
}

} // namespace uiutils::demo
