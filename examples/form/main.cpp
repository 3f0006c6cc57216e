#include "formvalues.h"

#include <uiutils/host.h>

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QTextStream>

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (app.arguments().size() < 2) {
        QTextStream(stderr) << "usage: form FILE [--save] [--picture FILE]\n"
                               "FILE keeps the values. --save stores the form at once if it is complete.\n";
        return 2;
    }
    FormValues values(app.arguments().at(1));
    uiutils::Host host;
    if (!host.start())
        return 1;
    QQmlApplicationEngine engine;
    host.showTo(&engine);
    engine.rootContext()->setContextProperty(QStringLiteral("formValues"), &values);
    engine.load(QUrl(QStringLiteral("qrc:/Page.qml")));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
