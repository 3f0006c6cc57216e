#include <uiutils/host.h>

#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    uiutils::Host host;
    if (!host.start())
        return 1;
    QQmlApplicationEngine engine;
    host.showTo(&engine);
    engine.load(QStringLiteral("Main.qml"));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
