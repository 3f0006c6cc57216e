#include "service/kivsignal.h"

#include <kiv/kivclientinterface.h>

#include <QPointer>

class uiutils::KIVSignalPrivate
{
public:
    void follow(KIVSignal* listener) const;

    QString service;
    QPointer<KIVClientInterface> client;
};

/// A service that is not reachable yet is heard from when it is.
void uiutils::KIVSignalPrivate::follow(KIVSignal* listener) const
{
    if (client && client->isValid())
        QObject::connect(client, &KIVClientInterface::SigError, listener, &KIVSignal::slotError, Qt::UniqueConnection);
}

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
    if (d->client)
        connect(d->client, &KIVClientInterface::itemsChanged, this, [this] { d->follow(this); });
    d->follow(this);
}

void KIVSignal::slotError(QString error)
{
    Q_EMIT signalKIVError(error);
}
