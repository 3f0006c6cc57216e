#include "linkreport.h"

#include <uiutils/host.h>

#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    uiutils::Host host;
    if (!host.start())
        return 1;
    qmlRegisterType<LinkReport>("Example", 1, 0, "LinkReport");
    QQmlApplicationEngine engine;
    host.showTo(&engine);
    engine.load(QUrl(QStringLiteral("qrc:/Page.qml")));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
