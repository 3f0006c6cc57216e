// The services of the reference platform; an instrument's are in instrumentplatform.cpp.

#include "base/root_p.h"
#include "ui_host/busplatform_p.h"
#include "ui_host/describedservices_p.h"
#include "ui_host/namedservices_p.h"
#include "ui_host/serviceplatform_p.h"

#include <embedded/embeddedbackend.h>
#include <embedded/servicefilewatch.h>

#include <QCoreApplication>

namespace uiutils {

using kiv::embedded::EmbeddedBackend;
using kiv::embedded::EmbeddedService;
using kiv::embedded::ServiceFileWatch;

namespace {

class EmbeddedPlatform final : public ServicePlatform
{
public:
    bool begin(const HostSetup& setup, QStringList* problems)
    {
        m_folders = setup.serviceFolders;
        return loadServices(m_backend, m_folders, setup.root, problems);
    }
    QStringList serviceNames() const override { return m_backend.serviceNames(); }
    EmbeddedService* ownService(const QString& name) const override { return m_backend.service(name); }
    void followFiles() override
    {
        m_watch = std::make_unique<ServiceFileWatch>(&m_backend, m_folders);
        connect(m_watch.get(), &ServiceFileWatch::serviceAdded, this, &ServicePlatform::serviceAppeared);
        connect(m_watch.get(), &ServiceFileWatch::filesRead, this, &ServicePlatform::filesRead);
    }

private:
    QStringList m_folders;
    EmbeddedBackend m_backend;
    std::unique_ptr<ServiceFileWatch> m_watch;
};

template<class Chosen, class Setup> std::unique_ptr<ServicePlatform> begun(const Setup& setup, QStringList* problems)
{
    auto platform = std::make_unique<Chosen>();
    return platform->begin(setup, problems) ? std::move(platform) : nullptr;
}

} // namespace

HostSetup ServicePlatform::completed(HostSetup setup)
{
    if (setup.root.isEmpty())
        setup.root = defaultRoot(QCoreApplication::applicationName());
    if (setup.serviceFolders.isEmpty())
        setup.serviceFolders = defaultServiceFolders();
    return setup;
}

std::unique_ptr<ServicePlatform> ServicePlatform::start(const HostSetup& setup, QStringList* problems)
{
    if (!setup.services.isEmpty())
        return begun<NamedServices>(setup.services, problems);
    QString problem;
    const std::optional<PlatformKind> kind = chosenPlatform(PlatformKind::Embedded, &problem);
    if (kind == PlatformKind::Bus)
        return startBusPlatform(setup, problems);
    if (kind == PlatformKind::Embedded)
        return begun<EmbeddedPlatform>(setup, problems);
    *problems += problem;
    return nullptr;
}

} // namespace uiutils
