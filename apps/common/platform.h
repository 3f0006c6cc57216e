#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace kiv::embedded {
class EmbeddedService;
}

namespace uiutils::apps {

/// Which services a program uses, and where they come from if they live in this process.
struct ServiceSetup
{
    /// Folders of service files.
    QStringList serviceFolders;
    /// Changed settings are stored below it.
    QString root;
    /// Services that this program drives itself, on every platform.
    QStringList ownServices;
};

/// The services of the platform that KIV_PLATFORM chooses. "embedded", the default, publishes the described services in
/// this process. "bus" finds those of other processes on the bus that KIV_BUS names, and publishes only the program's
/// own ones there.
class Platform : public QObject
{
    Q_OBJECT

public:
    /// Brings the services up. Returns null, having complained, when there are none, or KIV_PLATFORM is unknown.
    static std::unique_ptr<Platform> start(const ServiceSetup& setup);
    /// Whether KIV_PLATFORM names services in other processes.
    static bool isElsewhere();

    virtual QStringList serviceNames() const = 0;
    /// The own side of a service that this process publishes, or null.
    virtual kiv::embedded::EmbeddedService* ownService(const QString& name) const = 0;

Q_SIGNALS:
    /// A service that had not been seen before can be reached.
    void serviceAppeared(const QString& name);
};

} // namespace uiutils::apps
