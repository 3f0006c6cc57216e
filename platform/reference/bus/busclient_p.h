#pragma once

#include <kiv/kivclientinterface.h>
#include <kiv/kivrejectedsettings.h>

#include <QPointer>

namespace kiv::embedded {
struct Outcome;
}

namespace kiv::bus {

class RemoteService;

/// A client's view of a service on the bus; answers like an empty service while it cannot be reached.
class BusClient final : public KIVClientInterface, public KIVRejectedSettings
{
    Q_OBJECT
    Q_INTERFACES(KIVRejectedSettings)

public:
    BusClient(RemoteService* service, QObject* parent);

    bool isValid() const override;
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
    static bool remember(const QPointer<BusClient>& client, const embedded::Outcome& outcome);
    embedded::Outcome gone() const;

    const QPointer<RemoteService> m_service;
    const QString m_serviceName;
    QString m_lastError;
    QMap<QString, QString> m_rejected;
};

} // namespace kiv::bus
