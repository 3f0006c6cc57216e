#include "limit.h"

namespace uiutils::demo {

Status Limit::judge(double value) const
{
    const bool isKept = kind == AtMost ? value <= bound : value >= bound;
    if (!isKept)
        return StatusFail;
    const bool isKeptWell
            = kind == AtMost ? value <= bound * (1 - marginalShare) : value >= bound * (1 + marginalShare);
    return isKeptWell ? StatusPass : StatusMarginal;
}

} // namespace uiutils::demo
