#include "settling.h"

#include "benchmarks/timing.h"
#include "commands.h"
#include "workload.h"

#include <QTimer>

namespace bench {

namespace {

bool areAllRight(int changes, const IsRight& isRight)
{
    for (int item = 0; item < itemCount; ++item) {
        if (!isRight(item, changes))
            return false;
    }
    return true;
}

} // namespace

void answerWhenSettled(int changes, const IsRight& isRight, const std::function<bool()>& areBindingsRight)
{
    constexpr int lookMs = 5;
    constexpr double patience = 30;
    auto* looks = new QTimer;
    QObject::connect(looks, &QTimer::timeout, looks, [=, end = now() + patience] {
        if (!isRight(itemCount - 1, changes) && now() < end)
            return;
        looks->deleteLater();
        looks->stop();
        const double time = cpuMilliseconds();
        answer({time, double(areAllRight(changes, isRight) && areBindingsRight())});
    });
    looks->start(lookMs);
}

} // namespace bench
