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

private:
    QPointer<EmbeddedService> m_service;
    QString m_serviceName;
};

} // namespace kiv::embedded
