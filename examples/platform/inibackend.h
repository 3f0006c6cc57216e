#pragma once

#include <kiv/kivbackend.h>

#include <QMap>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVector>

class IniClient;

/// A platform whose services are the INI files of a folder: "supply.ini" is the service "supply".
class IniBackend final : public KIVBackend
{
public:
    explicit IniBackend(const QString& folder);
    /// Deletes every client.
    ~IniBackend() override;

    QStringList serviceNames() const;

    KIVClientInterface* baseManagerClient() override;
    KIVClientInterface* serviceClient(const QString& service, QObject* parent) override;

private:
    IniClient* newClient(const QString& service, QObject* parent);

    const QString m_folder;
    QMap<QString, IniClient*> m_shared;
    QVector<QPointer<IniClient>> m_clients;
};
