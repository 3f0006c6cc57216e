#include "service/kivsignal.h"

KIVSignal::KIVSignal(QObject* parent)
    : QObject(parent)
{
}

KIVSignal::~KIVSignal() = default;

void KIVSignal::setService(const QString& service)
{
    if (m_client)
        disconnect(m_client, nullptr, this, nullptr);
    m_service = service;
    m_client = KIVClientInterface::getSessionBusClient(service, nullptr);
    if (m_client && m_client->isValid())
        connect(m_client, &KIVClientInterface::SigError, this, &KIVSignal::slotError);
}

void KIVSignal::slotError(QString error)
{
    Q_EMIT signalKIVError(error);
}
