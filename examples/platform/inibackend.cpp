#include "inibackend.h"

#include "iniclient.h"

#include <QDir>

IniBackend::IniBackend(const QString& folder)
    : m_folder(folder)
{
}

IniBackend::~IniBackend()
{
    // Nothing that is notified of the end may find this object.
    if (current() == this)
        setCurrent(nullptr);
    for (const QPointer<IniClient>& client : qAsConst(m_clients))
        delete client;
}

QStringList IniBackend::serviceNames() const
{
    QStringList names;
    const QFileInfoList files = QDir(m_folder).entryInfoList({QStringLiteral("*.ini")}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files)
        names += file.completeBaseName();
    return names;
}

KIVClientInterface* IniBackend::baseManagerClient()
{
    return serviceClient(QStringLiteral("basemgr"), nullptr);
}

KIVClientInterface* IniBackend::serviceClient(const QString& service, QObject* parent)
{
    // A client outlives its service, but none is made for a service that was never there.
    if (!m_shared.contains(service) && !serviceNames().contains(service))
        return nullptr;
    if (parent)
        return newClient(service, parent);
    IniClient*& shared = m_shared[service];
    if (!shared)
        shared = newClient(service, nullptr);
    return shared;
}

IniClient* IniBackend::newClient(const QString& service, QObject* parent)
{
    auto* client = new IniClient(QDir(m_folder).filePath(service + QLatin1String(".ini")), parent);
    m_clients += client;
    return client;
}
