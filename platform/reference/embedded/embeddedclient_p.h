#pragma once

#include <kiv/kivclientinterface.h>

#include <QPointer>

namespace kiv::embedded {

class EmbeddedService;

/// A client's view of a service in this process; answers like an empty service once the service is gone.
class EmbeddedClient final : public KIVClientInterface
{
    Q_OBJECT

public:
    EmbeddedClient(EmbeddedService* service, QObject* parent);

    bool isValid() const override { return m_service; }
    QString getServiceName() const override { return m_serviceName; }
    QStringList getItemIds(const QString& prefix = QString()) const override;
    KIVClientItem* getItem(const QString& id) const override;
    bool setItem(const QString& id, const QVariant& value) override;
    bool sendAction(const QString& id, const QString& argument, QString* reply, int timeoutMs) override;
    bool invokeAction(const QString& id) override;
    QString getLastError() const override { return m_lastError; }

private:
    QPointer<EmbeddedService> m_service;
    QString m_serviceName;
    QString m_lastError;
};

} // namespace kiv::embedded
