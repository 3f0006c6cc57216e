#include "ui_host/host.h"

#include "base/folderwatch_p.h"
#include "base/root_p.h"
#include "base/servicetag_p.h"
#include "languages/languages.h"
#include "module/modulepath.h"
#include "service/manifest.h"
#include "ui_host/images_p.h"
#include "ui_host/serviceplatform_p.h"
#include "ui_host/viewerlink_p.h"

#include <kiv/kivclientinterface.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QMap>
#include <QPointer>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlPropertyMap>

#include <cstdio>

namespace uiutils {

using kiv::embedded::EmbeddedService;

namespace {

QStringList translationsBeside(const QStringList& serviceFolders)
{
    QStringList folders;
    for (const QString& folder : serviceFolders) {
        const QString beside = folder + QStringLiteral("/translations");
        if (QFileInfo(beside).isDir())
            folders += beside;
    }
    return folders;
}

/// Pages can read the services, not replace them.
class ServicesByName final : public QQmlPropertyMap
{
    QVariant updateValue(const QString& key, const QVariant&) override { return value(key); }
};

} // namespace

struct Host::Private
{
    ~Private()
    {
        qDeleteAll(manifests);
        Languages::instance()->close();
    }

    bool startPlatform(const HostSetup& setup);
    void add(const QString& service);

    std::unique_ptr<ServicePlatform> platform;
    QMap<QString, Manifest*> manifests;
    ServicesByName byName;
    QPointer<QQmlEngine> engine;
    QStringList problems;
    QStringList translationFolders;
    std::unique_ptr<FolderWatch> translationWatch;
};

bool Host::Private::startPlatform(const HostSetup& setup)
{
    platform = ServicePlatform::start(setup, &problems);
    if (!platform)
        return false;
    const QStringList names = platform->serviceNames();
    for (const QString& name : names)
        add(name);
    return true;
}

void Host::Private::add(const QString& service)
{
    auto* manifest = new Manifest(KIVClientInterface::getSessionBusClient(service), tagOf(service), service);
    QQmlEngine::setObjectOwnership(manifest, QQmlEngine::CppOwnership);
    manifests.insert(service, manifest);
    // Pages that are there already use the items as soon as `services` has the service.
    if (engine)
        Manifest::setQmlContext(engine->rootContext());
    byName.insert(service, QVariant::fromValue<QObject*>(manifest));
}

Host::Host(QObject* parent)
    : QObject(parent)
    , d(new Private)
{
    QQmlEngine::setObjectOwnership(&d->byName, QQmlEngine::CppOwnership);
}

Host::~Host() = default;

bool Host::start(const HostSetup& setup)
{
    // The manifests are those of the platform that is there.
    if (d->platform)
        return false;
    const HostSetup complete = ServicePlatform::completed(setup);
    d->translationFolders = translationsBeside(complete.serviceFolders);
    Languages::instance()->setServiceFolders(d->translationFolders);
    Languages::instance()->open(setup.translationFolders);
    const bool isUsable = useRoot(complete.root, &d->problems) && d->startPlatform(complete);
    if (isUsable) {
        d->problems += placeImages() + placeViewer();
        connect(d->platform.get(), &ServicePlatform::serviceAppeared, this, [this](const QString& name) {
            // A service that was withdrawn meanwhile has its manifest still.
            if (d->manifests.contains(name))
                return;
            d->add(name);
            Q_EMIT serviceAdded(name);
        });
        connect(d->platform.get(), &ServicePlatform::filesRead, this, &Host::serviceFilesRead);
    }
    for (const QString& problem : qAsConst(d->problems))
        std::fprintf(stderr, "%s: %s\n", qUtf8Printable(QCoreApplication::applicationName()), qUtf8Printable(problem));
    return isUsable;
}

bool Host::setLanguage(const QString& code)
{
    return Languages::instance()->setCurrent(code);
}

void Host::followServiceFiles()
{
    if (!d->platform)
        return;
    d->platform->followFiles();
    d->translationWatch = std::make_unique<FolderWatch>(d->translationFolders, QStringList(QStringLiteral("*.qm")),
            FolderWatch::ThisFolder, [](const QStringList&, bool) { Languages::instance()->readAgain(); });
}

QStringList Host::problems() const
{
    return d->problems;
}

void Host::showTo(QQmlEngine* engine)
{
    d->engine = engine;
    Languages::instance()->follow(engine);
    const QString modules = qmlImportPath();
    if (!modules.isEmpty())
        engine->addImportPath(modules);
    engine->rootContext()->setContextProperty(QStringLiteral("services"), &d->byName);
    Manifest::setQmlContext(engine->rootContext());
}

QStringList Host::serviceNames() const
{
    return d->manifests.keys();
}

Manifest* Host::manifest(const QString& service) const
{
    return d->manifests.value(service);
}

EmbeddedService* Host::ownService(const QString& name) const
{
    return d->platform ? d->platform->ownService(name) : nullptr;
}

} // namespace uiutils
