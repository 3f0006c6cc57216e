// Publishes the service on the bus, for pages in other processes. It ends with the bus, or when it is interrupted.

#include "linkbudget.h"

#include <bus/buspublisher.h>
#include <embedded/embeddedbackend.h>

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    kiv::embedded::EmbeddedBackend backend;
    LinkBudget budget(backend);

    kiv::bus::BusPublisher publisher;
    QObject::connect(&publisher, &kiv::bus::BusPublisher::published, &app,
            [](const QString& service) { QTextStream(stdout) << service << " is on the bus" << Qt::endl; });
    QObject::connect(&publisher, &kiv::bus::BusPublisher::connectionFailed, &app, [](const QString& reason) {
        QTextStream(stderr) << reason << Qt::endl;
        QCoreApplication::exit(1);
    });
    QString problem;
    if (!publisher.publish(budget.service(), &problem)) {
        QTextStream(stderr) << problem << Qt::endl;
        return 1;
    }
    return QCoreApplication::exec();
}
