// The service and its page in one process.

#include "linkbudget.h"

#include <embedded/embeddedbackend.h>
#include <uiutils/host.h>

#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    kiv::embedded::EmbeddedBackend backend;
    LinkBudget budget(backend);
    uiutils::HostSetup setup;
    setup.services = QStringList {LinkBudget::name};
    uiutils::Host host;
    if (!host.start(setup))
        return 1;
    QQmlApplicationEngine engine;
    host.showTo(&engine);
    engine.load(QUrl(QStringLiteral("qrc:/Page.qml")));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
