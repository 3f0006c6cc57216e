#include "changing.h"
#include "options.h"
#include "output.h"
#include "reading.h"
#include "recording.h"
#include "services.h"
#include "watch.h"

#include "common/complaint.h"
#include "common/standardstreams.h"

#include <QCoreApplication>

#include <csignal>

using namespace uiutils;
using kivctl::Command;

namespace {

int run(kivctl::Services& services, const kivctl::Options& options)
{
    switch (options.command) {
    case Command::List:
        return kivctl::list(services, options);
    case Command::Get:
        return kivctl::get(services, options);
    case Command::Set:
        return kivctl::set(services, options);
    case Command::Batch:
        return kivctl::batch(services, options);
    case Command::Action:
        return kivctl::action(services, options);
    case Command::Watch:
        return kivctl::watch(services, options);
    case Command::Dump:
        return kivctl::dump(services, options);
    case Command::Load:
        return kivctl::load(services, options);
    case Command::Services:
        return kivctl::listServices(services, options);
    case Command::Record:
        return kivctl::record(services, options);
    case Command::Replay:
        return kivctl::replay(options);
    }
    return apps::exitMisused;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("kivctl"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KIVCTL_VERSION));
    apps::holdStandardStreams();
    std::signal(SIGPIPE, SIG_IGN);
    kivctl::complainOfWarnings();
    const QCoreApplication application(argc, argv);
    const kivctl::Options options = kivctl::readOptions(QCoreApplication::arguments());
    if (const auto exitStatus = apps::exitCodeOf(options))
        return *exitStatus;
    kivctl::Services services(options);
    return run(services, options);
}
