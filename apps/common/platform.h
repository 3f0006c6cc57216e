#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace kiv::embedded {
class EmbeddedService;
}

namespace uiutils::apps {

/// Where services live: in this process, or in others.
enum class PlatformKind { Embedded, Bus };

/// What KIV_PLATFORM names, or `standard` when it is not set. Returns nothing, with the reason in `problem`, when it
/// names no platform.
std::optional<PlatformKind> chosenPlatform(PlatformKind standard, QString* problem);

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

    virtual QStringList serviceNames() const = 0;
    /// The own side of a service that this process publishes, or null.
    virtual kiv::embedded::EmbeddedService* ownService(const QString& name) const = 0;

Q_SIGNALS:
    /// A service that had not been seen before can be reached.
    void serviceAppeared(const QString& name);
};

} // namespace uiutils::apps
