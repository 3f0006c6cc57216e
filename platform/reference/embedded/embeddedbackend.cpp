#include "embeddedbackend.h"

#include "embeddedclient_p.h"
#include "embeddedservice.h"
#include "formatters/formatters_p.h"
#include "servicefile_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QMap>

namespace kiv::embedded {

const QLatin1String EmbeddedBackend::baseManagerName("basemgr");

struct EmbeddedBackend::Private
{
    struct Published
    {
        EmbeddedService* service = nullptr;
        EmbeddedClient* sharedClient = nullptr;
        QString file;
    };

    QObject owner;
    QMap<QString, Published> services;
};

EmbeddedBackend::EmbeddedBackend()
    : d(std::make_unique<Private>())
{
    setCurrent(this);
}

EmbeddedBackend::~EmbeddedBackend()
{
    // Nobody who hears of an item's end may find a service that is on its way out.
    if (current() == this)
        setCurrent(nullptr);
    d->services.clear();
}

QStringList EmbeddedBackend::foldersFromEnvironment()
{
    return qEnvironmentVariable("KIV_SERVICES").split(QLatin1Char(':'), Qt::SkipEmptyParts);
}

QStringList EmbeddedBackend::loadFolders(const QStringList& folders)
{
    QStringList problems;
    for (const QString& folder : folders) {
        const QDir dir(folder);
        if (!dir.exists() || !dir.isReadable()) {
            problems += QCoreApplication::translate("EmbeddedBackend", "%1: no folder of service files, or not readable")
                                .arg(folder);
            continue;
        }
        const QStringList files = dir.entryList({QStringLiteral("*.service.json")}, QDir::Files, QDir::Name);
        for (const QString& file : files) {
            QString problem;
            if (!loadFile(dir.filePath(file), &problem))
                problems += problem;
        }
    }
    return problems;
}

bool EmbeddedBackend::loadFile(const QString& path, QString* problem)
{
    QString reason;
    const std::optional<ServiceDescription> description = readServiceFile(path, &reason);
    if (description && d->services.contains(description->service))
        reason = QCoreApplication::translate("EmbeddedBackend", "%1: /service: \"%2\" is published already by %3")
                         .arg(path, description->service, d->services.value(description->service).file);
    if (!reason.isEmpty()) {
        if (problem)
            *problem = reason;
        return false;
    }

    Private::Published published;
    published.service = new EmbeddedService(*description, &d->owner);
    published.sharedClient = new EmbeddedClient(published.service, &d->owner);
    published.file = path;
    d->services.insert(description->service, published);
    return true;
}

QStringList EmbeddedBackend::serviceNames() const
{
    return d->services.keys();
}

EmbeddedService* EmbeddedBackend::service(const QString& name) const
{
    return d->services.value(name).service;
}

KIVClientInterface* EmbeddedBackend::baseManagerClient()
{
    return serviceClient(baseManagerName, nullptr);
}

BaseFormatter* EmbeddedBackend::createFormatter(const QString& name) const
{
    return formatters::create(name);
}

KIVClientInterface* EmbeddedBackend::serviceClient(const QString& service, QObject* parent)
{
    const Private::Published published = d->services.value(service);
    if (!published.service || !parent)
        return published.sharedClient;
    return new EmbeddedClient(published.service, parent);
}

} // namespace kiv::embedded
