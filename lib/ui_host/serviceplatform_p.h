#pragma once

#include "ui_host/host.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace uiutils {

/// The services that an application uses, wherever they live.
class ServicePlatform : public QObject
{
    Q_OBJECT

public:
    /// The setup with the defaults of the platform in place of what is empty.
    static HostSetup completed(HostSetup setup);

    /// Brings the services up: those that `setup` names, else those of the platform that KIV_PLATFORM chooses. Returns
    /// null, with the reason in `problems`, when there are none, or KIV_PLATFORM is unknown. What else went wrong is in
    /// `problems` too.
    static std::unique_ptr<ServicePlatform> start(const HostSetup& setup, QStringList* problems);

    virtual QStringList serviceNames() const = 0;
    /// The own side of a service that this process publishes, or null.
    virtual kiv::embedded::EmbeddedService* ownService(const QString& name) const = 0;
    /// Reads the service files again when they change, where services of this process are described by files.
    virtual void followFiles() { }

Q_SIGNALS:
    /// A service that had not been seen before can be reached.
    void serviceAppeared(const QString& name);
    /// Service files were read again; what is wrong with them now.
    void filesRead(const QStringList& problems);
};

} // namespace uiutils
