#include <uiutils/host.h>

#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    uiutils::HostSetup setup;
    setup.serviceFolders = QStringList {QStringLiteral(":/services")};
    uiutils::Host host;
    if (!host.start(setup))
        return 1;
    QQmlApplicationEngine engine;
    host.showTo(&engine);
    engine.load(QUrl(QStringLiteral("qrc:/Page.qml")));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
