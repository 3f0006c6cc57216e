#include "buscases.h"
#include "helper.h"
#include "roles.h"

#include <QCoreApplication>
#include <QLoggingCategory>

namespace {

int run(const QString& role)
{
    struct Role
    {
        const char* name;
        int (*run)();
    };
    constexpr Role roles[] {
            {"publisher", bench::publisherRole},
            {"client", bench::clientRole},
            {"embedded", bench::embeddedRole},
            {"qtsender", bench::qtSenderRole},
            {"qtclient", bench::qtClientRole},
#ifdef UIUTILS_HAS_REMOTE_OBJECTS
            {"replicahost", bench::replicaHostRole},
            {"replicawatcher", bench::replicaWatcherRole},
#endif
    };
    for (const Role& known : roles) {
        if (role == QLatin1String(known.name))
            return known.run();
    }
    return 2;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--role"))
        return run(arguments.value(2));

    const bench::Options options = bench::readOptions(
            QStringLiteral("Measures services on a bus of their own against QtDBus, each in a process of its own."),
            {{"latency", bench::latencyCases}, {"load", bench::loadCases}, {"record", bench::recordCases},
                    {"start", bench::startCases}, {"memory", bench::memoryCases}});
    const bench::PrivateBus bus;
    return bench::measureRooms(options);
}
