#include "inibackend.h"

#include <uiutils/host.h>

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QTextStream>

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (app.arguments().size() < 2) {
        QTextStream(stderr) << "usage: platform FOLDER [--picture FILE]\n";
        return 2;
    }
    IniBackend backend(app.arguments().at(1));
    KIVBackend::setCurrent(&backend);
    uiutils::HostSetup setup;
    setup.services = backend.serviceNames();
    uiutils::Host host;
    if (!host.start(setup))
        return 1;
    QQmlApplicationEngine engine;
    host.showTo(&engine);
    engine.load(QUrl(QStringLiteral("qrc:/Page.qml")));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
