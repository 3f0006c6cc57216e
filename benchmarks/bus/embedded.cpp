#include "benchmarks/memory.h"
#include "commands.h"
#include "ownservice.h"
#include "roles.h"
#include "workload.h"

#include <embedded/embeddedservice.h>

#include <QCoreApplication>

namespace bench {

int embeddedRole()
{
    std::unique_ptr<OwnService> service;
    const Commands commands({{QStringLiteral("memory"), [&service](const QVector<int>&) {
                                  const double before = heapBytes();
                                  service = std::make_unique<OwnService>(itemCount);
                                  for (int item = 0; item < itemCount; ++item)
                                      service->service()->item(itemId(item));
                                  answer({heapBytes() - before});
                              }}});
    return QCoreApplication::exec();
}

} // namespace bench
