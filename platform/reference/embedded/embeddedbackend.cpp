#include "embeddedbackend.h"

#include "descriptioncheck_p.h"
#include "embeddedclient_p.h"
#include "formatters/formatters_p.h"
#include "keptstate_p.h"
#include "servicedata_p.h"
#include "servicefile_p.h"
#include "serviceregistry_p.h"
#include "texts_p.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace kiv::embedded {

const QLatin1String EmbeddedBackend::baseManagerName("basemgr");

struct EmbeddedBackend::Private
{
    ServiceRegistry registry;
    QString stateFolder;
    FileReader fileReader;
};

EmbeddedBackend::EmbeddedBackend()
    : d(std::make_unique<Private>())
{
    setCurrent(this);
}

EmbeddedBackend::~EmbeddedBackend()
{
    // A slot that hears of an item's end must not find a service that is being removed.
    if (current() == this)
        setCurrent(nullptr);
    const QStringList names = d->registry.names();
    for (const QString& name : names)
        withdraw(name);
}

void EmbeddedBackend::setStateFolder(const QString& path)
{
    d->stateFolder = path;
}

void EmbeddedBackend::setFileReader(const FileReader& reader)
{
    d->fileReader = reader;
}

QStringList EmbeddedBackend::foldersFromEnvironment()
{
    return qEnvironmentVariable("KIV_SERVICES").split(QLatin1Char(':'), Qt::SkipEmptyParts);
}

QStringList EmbeddedBackend::loadFolders(const QStringList& folders)
{
    const QPointer<QObject> alive(&d->registry);
    QStringList problems;
    for (const QString& folder : folders) {
        const QDir dir(folder);
        if (!dir.exists() || !dir.isReadable()) {
            problems += ServiceFileTexts::tr("%1: not a folder of service files, or not readable").arg(folder);
            continue;
        }
        const QStringList files = dir.entryList({QStringLiteral("*.service.json")}, QDir::Files, QDir::Name);
        for (const QString& file : files) {
            // A client that waited for the service may delete the back end when it appears.
            if (alive)
                loadFile(dir.filePath(file), &problems);
        }
    }
    return problems;
}

bool EmbeddedBackend::loadFile(const QString& path, QString* problem)
{
    QStringList problems;
    const bool isLoaded = loadFile(path, &problems);
    if (problem)
        *problem = problems.join(QLatin1Char('\n'));
    return isLoaded;
}

/// A file that can be used, with what else it says.
struct EmbeddedBackend::CheckedFile
{
    ServiceFile file;
    FileExtras extras;
};

std::optional<EmbeddedBackend::CheckedFile> EmbeddedBackend::check(const QString& path, QStringList* problems) const
{
    QString reason;
    const std::optional<ServiceFile> file = readServiceFile(path, &reason);
    if (!file) {
        *problems += reason;
        return std::nullopt;
    }
    const FileExtras extras = d->fileReader ? d->fileReader(path, file->document, file->service) : FileExtras();
    if (!extras.problem.isEmpty()) {
        *problems += path + QLatin1String(": ") + extras.problem;
        return std::nullopt;
    }
    return CheckedFile {*file, extras};
}

bool EmbeddedBackend::loadFile(const QString& path, QStringList* problems)
{
    const std::optional<CheckedFile> checked = check(path, problems);
    return checked && publish(checked->file.service, path, checked->extras, problems);
}

/// Whether the service is published, and by something else than the file.
bool EmbeddedBackend::isFromElsewhere(const QString& service, const QString& path) const
{
    const ServicePlace* place = d->registry.place(service);
    return place && place->service() && QFileInfo(place->file()) != QFileInfo(path);
}

bool EmbeddedBackend::reloadFile(const QString& path, QJsonObject* document, QStringList* problems)
{
    const std::optional<CheckedFile> checked = check(path, problems);
    if (!checked)
        return false;
    const QString name = checked->file.service.service;
    const QString nameBefore = document->value(QLatin1String("service")).toString();
    const QPointer<QObject> alive(&d->registry);
    std::optional<KeptState> kept;
    if (!isFromElsewhere(name, path)) {
        if (const EmbeddedService* running = service(name))
            kept.emplace(*running, *document, checked->file.document);
        withdraw(name);
        if (alive && nameBefore != name && !isFromElsewhere(nameBefore, path))
            withdraw(nameBefore);
    }
    if (!alive)
        return false;
    EmbeddedService* published = publish(checked->file.service, path, checked->extras, problems);
    if (published && kept)
        kept->giveBackTo(published);
    if (published)
        *document = checked->file.document;
    return published;
}

EmbeddedService* EmbeddedBackend::publish(const ServiceDescription& description, QString* problem)
{
    QStringList problems;
    const QString reason = serviceProblem(description);
    EmbeddedService* service = nullptr;
    if (reason.isEmpty())
        service = publish(description, QString(), FileExtras(), &problems);
    else
        problems += reason;
    if (problem)
        *problem = problems.join(QLatin1Char('\n'));
    return service;
}

EmbeddedService* EmbeddedBackend::publish(
        const ServiceDescription& description, const QString& file, const FileExtras& extras, QStringList* problems)
{
    ServicePlace* place = d->registry.makePlace(description.service);
    if (place->service()) {
        const QString owner = place->file().isEmpty() ? ServiceFileTexts::tr("the program") : place->file();
        const QString reason
                = ServiceFileTexts::tr("/service: \"%1\" is published already by %2").arg(description.service, owner);
        *problems += file.isEmpty() ? reason : file + QLatin1String(": ") + reason;
        return nullptr;
    }
    EmbeddedService* service = ServiceData::create(description, place);
    ServiceData& data = ServiceData::of(*service);
    data.published = [registry = &d->registry] { return registry->services(); };
    if (!d->stateFolder.isEmpty()) {
        data.keeper = std::make_unique<StateKeeper>(d->stateFolder, description.service, data.items);
        QObject::connect(data.keeper.get(), &StateKeeper::failed, service, &EmbeddedService::reportError);
        *problems += data.keeper->takeBack();
    }
    *problems += extras.notes;
    if (extras.begin)
        extras.begin(service);
    // A slot that hears of the new items may withdraw them at once.
    const QPointer<EmbeddedService> published(service);
    place->publish(service, file);
    return published;
}

bool EmbeddedBackend::withdraw(const QString& name)
{
    ServicePlace* place = d->registry.place(name);
    if (!place || !place->service())
        return false;
    place->withdraw();
    return true;
}

QStringList EmbeddedBackend::serviceNames() const
{
    return d->registry.names();
}

EmbeddedService* EmbeddedBackend::service(const QString& name) const
{
    const ServicePlace* place = d->registry.place(name);
    return place ? place->service() : nullptr;
}

KIVClientInterface* EmbeddedBackend::baseManagerClient()
{
    return serviceClient(baseManagerName, nullptr);
}

BaseFormatter* EmbeddedBackend::createFormatter(const QString& name) const
{
    return formatters::create(name);
}

std::optional<bool> EmbeddedBackend::isMounted(const QString& path) const
{
    const QVector<EmbeddedService*> services = d->registry.services();
    return std::any_of(services.cbegin(), services.cend(),
            [&path](const EmbeddedService* service) { return service->isMounted(path); });
}

KIVClientInterface* EmbeddedBackend::serviceClient(const QString& service, QObject* parent)
{
    ServicePlace* place = d->registry.place(service);
    if (!place || !place->service())
        return nullptr;
    return parent ? new EmbeddedClient(place, parent) : place->sharedClient();
}

} // namespace kiv::embedded
