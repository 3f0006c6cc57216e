#include "bindingcases.h"

namespace bench {

QVector<Result> bindingCases(int runs)
{
    return createCases(runs) + updateCases(runs) + contextCases(runs) + moduleCases(runs);
}

} // namespace bench
