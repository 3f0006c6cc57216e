#include "limit.h"

namespace uiutils::demo {

Status::Code Limit::judge(double value) const
{
    const bool isKept = kind == AtMost ? value <= bound : value >= bound;
    if (!isKept)
        return Status::Fail;
    const bool isKeptWell
            = kind == AtMost ? value <= bound * (1 - marginalShare) : value >= bound * (1 + marginalShare);
    return isKeptWell ? Status::Pass : Status::Marginal;
}

} // namespace uiutils::demo
