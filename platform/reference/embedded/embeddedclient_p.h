#pragma once

#include "requests_p.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivrejectedsettings.h>

#include <QPointer>

namespace kiv::embedded {

class ServicePlace;

/// A client's view of the service that is published at a place, if any; without one it answers like an empty service.
class EmbeddedClient final : public KIVClientInterface, public KIVRejectedSettings
{
    Q_OBJECT
    Q_INTERFACES(KIVRejectedSettings)

public:
    EmbeddedClient(ServicePlace* place, QObject* parent);

    bool isValid() const override { return service(); }
    QString getServiceName() const override { return m_serviceName; }
    QStringList getItemIds(const QString& prefix = QString()) const override;
    bool getItemList(const QString& service, QStringList* ids) const override;
    KIVClientItem* getItem(const QString& id) const override;
    bool setItem(const QString& id, const QVariant& value) override;
    bool sendAction(const QString& id, const QString& argument, QString* reply, int timeoutMs) override;
    bool invokeAction(const QString& id) override;
    QString getLastError() const override { return m_lastError; }
    QMap<QString, QString> rejectedSettings() const override { return m_rejected; }

private:
    /// The service; null while it cannot be reached.
    EmbeddedService* service() const;
    Outcome call(int delayMs, int timeoutMs, const Request& request) const;
    static bool remember(const QPointer<EmbeddedClient>& client, const Outcome& outcome);

    const QPointer<ServicePlace> m_place;
    const QString m_serviceName;
    QString m_lastError;
    QMap<QString, QString> m_rejected;
};

} // namespace kiv::embedded
