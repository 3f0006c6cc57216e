#include "service/kivsignal.h"

#include <kiv/kivclientinterface.h>

#include <QPointer>

class uiutils::KIVSignalPrivate
{
public:
    QString service;
    QPointer<KIVClientInterface> client;
};

KIVSignal::KIVSignal(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<uiutils::KIVSignalPrivate>())
{
}

KIVSignal::~KIVSignal() = default;

QString KIVSignal::getService() const
{
    return d->service;
}

void KIVSignal::setService(const QString& service)
{
    if (d->client)
        disconnect(d->client, nullptr, this, nullptr);
    d->service = service;
    d->client = KIVClientInterface::getSessionBusClient(service, nullptr);
    if (d->client && d->client->isValid())
        connect(d->client, &KIVClientInterface::SigError, this, &KIVSignal::slotError);
}

void KIVSignal::slotError(QString error)
{
    Q_EMIT signalKIVError(error);
}
