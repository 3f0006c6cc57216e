#include "activation.h"
#include "options.h"
#include "texts.h"

#include "common/complaint.h"
#include "common/startup.h"
#include "common/termination.h"

#include <bus/buspublisher.h>
#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <embedded/servicefilewatch.h>

#include <QCoreApplication>
#include <QHash>
#include <QPointer>
#include <QSet>

#include <systemd/sd-daemon.h>

#include <algorithm>
#include <memory>

using namespace uiutils;
using apps::complain;
using apps::exitDone;
using apps::exitFailed;
using kiv::embedded::EmbeddedBackend;
using kiv::embedded::EmbeddedService;
using kiv::embedded::ServiceFileWatch;
using kivd::Options;
using kivd::Texts;

namespace {

QStringList publishedNames(const EmbeddedBackend& backend, const Options& options)
{
    QStringList names = backend.serviceNames();
    for (const QString& name : options.without)
        names.removeAll(name);
    return names;
}

/// Tells the service manager, if one has started the program, when every service is on the bus.
void notifyWhenPublished(kiv::bus::BusPublisher& publisher, const QStringList& names)
{
    QObject::connect(&publisher, &kiv::bus::BusPublisher::published, &publisher, [&publisher, names] {
        const bool isComplete = std::all_of(
                names.cbegin(), names.cend(), [&](const QString& name) { return publisher.isPublished(name); });
        if (isComplete)
            sd_notify(0, "READY=1");
    });
}

bool isStartedByBus()
{
    return qEnvironmentVariableIsSet("DBUS_STARTER_BUS_TYPE");
}

void complainOf(const kiv::bus::BusPublisher& publisher, const QStringList& names)
{
    QObject::connect(&publisher, &kiv::bus::BusPublisher::connectionFailed, &publisher,
            [last = QString()](const QString& reason) mutable {
                // What a bus has started ends with it. Otherwise the bus is tried again, and a reason is told once.
                if (isStartedByBus())
                    QCoreApplication::exit(exitDone);
                else if (reason != last)
                    complain(reason);
                last = reason;
            });
    QObject::connect(&publisher, &kiv::bus::BusPublisher::nameTaken, &publisher,
            [names, taken = QSet<QString>()](const QString& name) mutable {
                // The bus starts a program for every name that is asked for while none is taken; one is enough.
                if (isStartedByBus()) {
                    taken += name;
                    if (taken.size() == names.size())
                        QCoreApplication::exit(exitDone);
                    return;
                }
                complain(Texts::tr(
                        "Another program publishes the service %1. This one takes over when that program ends.")
                                 .arg(name));
            });
}

/// What has been given to the publisher; by name.
using Given = QHash<QString, QPointer<EmbeddedService>>;

/// Publishes what is not on the bus yet. A service whose file was read again is another object of the same name.
void publishNew(kiv::bus::BusPublisher& publisher, const EmbeddedBackend& backend, const Options& options, Given* given)
{
    const QStringList names = publishedNames(backend, options);
    for (const QString& name : names) {
        EmbeddedService* service = backend.service(name);
        if (given->value(name) == service)
            continue;
        given->insert(name, service);
        QString problem;
        if (!publisher.publish(service, &problem))
            complain(problem);
    }
}

int publish(EmbeddedBackend& backend, const Options& options)
{
    const apps::Termination termination;
    QObject::connect(&termination, &apps::Termination::requested, qApp, &QCoreApplication::quit);
    kiv::bus::BusPublisher publisher;
    const QStringList names = publishedNames(backend, options);
    notifyWhenPublished(publisher, names);
    complainOf(publisher, names);
    Given given;
    publishNew(publisher, backend, options, &given);
    std::unique_ptr<ServiceFileWatch> watch;
    if (options.isFollowing) {
        watch = std::make_unique<ServiceFileWatch>(&backend, options.serviceFolders);
        QObject::connect(watch.get(), &ServiceFileWatch::filesRead, &publisher, [&](const QStringList& problems) {
            for (const QString& problem : problems)
                complain(problem);
            publishNew(publisher, backend, options, &given);
        });
    }
    QCoreApplication::exec();
    sd_notify(0, "STOPPING=1");
    return exitDone;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("kivd"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KIVD_VERSION));
    const QCoreApplication application(argc, argv);
    const Options options = kivd::readOptions(QCoreApplication::arguments());
    if (const auto exitCode = apps::exitCodeOf(options))
        return *exitCode;
    if (!apps::useRoot(options.root))
        return exitFailed;
    // Ends after the publisher: it stores the settings.
    EmbeddedBackend backend;
    if (!apps::loadServices(backend, options.serviceFolders, options.root))
        return exitFailed;
    if (!options.activationFolder.isEmpty())
        return kivd::writeActivationFiles(publishedNames(backend, options), options);
    return publish(backend, options);
}
