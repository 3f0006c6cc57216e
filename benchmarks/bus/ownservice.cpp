#include "ownservice.h"

#include "workload.h"

#include <QTemporaryFile>

namespace bench {

OwnService::OwnService(int items)
{
    QTemporaryFile file;
    file.open();
    file.write(serviceFile(items));
    file.flush();
    QString problem;
    if (!m_backend.loadFile(file.fileName(), &problem))
        qFatal("%s", qPrintable(problem));
}

kiv::embedded::EmbeddedService* OwnService::service() const
{
    return m_backend.service(serviceName());
}

} // namespace bench
