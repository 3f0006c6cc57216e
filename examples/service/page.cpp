// The page alone, over the services that other processes publish on the bus.

#include <uiutils/host.h>

#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    qputenv("KIV_PLATFORM", "bus");
    uiutils::Host host;
    if (!host.start())
        return 1;
    QQmlApplicationEngine engine;
    host.showTo(&engine);
    engine.load(QUrl(QStringLiteral("qrc:/Page.qml")));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
