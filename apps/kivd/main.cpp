#include "activation.h"
#include "options.h"
#include "texts.h"

#include "common/complaint.h"
#include "common/startup.h"
#include "common/termination.h"

#include <bus/buspublisher.h>
#include <embedded/embeddedbackend.h>

#include <QCoreApplication>

#include <systemd/sd-daemon.h>

#include <algorithm>

using namespace uiutils;
using apps::complain;
using apps::exitDone;
using apps::exitFailed;
using kivd::Options;
using kivd::Texts;

namespace {

QStringList publishedNames(const kiv::embedded::EmbeddedBackend& backend, const Options& options)
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
            [names, taken = 0](const QString& name) mutable {
                // The bus starts a program for every name that is asked for while none is taken; one is enough.
                if (isStartedByBus()) {
                    if (++taken == names.size())
                        QCoreApplication::exit(exitDone);
                    return;
                }
                complain(Texts::tr(
                        "Another program publishes the service %1. This one takes over when that program ends.")
                                 .arg(name));
            });
}

int publish(const kiv::embedded::EmbeddedBackend& backend, const Options& options)
{
    const apps::Termination termination;
    QObject::connect(&termination, &apps::Termination::requested, qApp, &QCoreApplication::quit);
    kiv::bus::BusPublisher publisher;
    const QStringList names = publishedNames(backend, options);
    notifyWhenPublished(publisher, names);
    complainOf(publisher, names);
    for (const QString& name : names) {
        QString problem;
        if (!publisher.publish(backend.service(name), &problem))
            complain(problem);
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
    kiv::embedded::EmbeddedBackend backend;
    if (!apps::loadServices(backend, options.serviceFolders, options.root))
        return exitFailed;
    if (!options.activationFolder.isEmpty())
        return kivd::writeActivationFiles(publishedNames(backend, options), options);
    return publish(backend, options);
}
