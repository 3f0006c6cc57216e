#pragma once

#include "ui_host/host_export.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class Manifest;
class QQmlEngine;

namespace kiv::embedded {
class EmbeddedService;
}

namespace uiutils {

/// What a host brings up. Every member has a useful default.
struct HostSetup
{
    /// Folders of service files. If empty: the folders in KIV_SERVICES, else the installed ones.
    QStringList serviceFolders = {};
    /// The folder that stands for the instrument's root; changed settings are stored below it. If empty: UIUTILS_ROOT,
    /// else a folder of the application in the user's state folder; on an instrument, the root itself.
    QString root = {};
    /// The names of described services that this application drives itself, on every platform: see Host::ownService().
    QStringList ownServices = {};
    /// The names of the services of a platform that does not describe them: an instrument's, or a back end that the
    /// application has made the current one. If there are any, KIV_PLATFORM and `serviceFolders` are not used.
    QStringList services = {};
    /// Folders with translations of the application, "NAME_LANGUAGE.qm" with any NAME. Those of a later folder have
    /// precedence. A resource, such as ":/translations", is a folder, too.
    QStringList translationFolders = {};
};

/// What every application with pages repeats: it brings up the services, makes them known to the pages, and finds the
/// QML module, the translations, the images of reports and the viewer of saved ones.
///
/// Create the application object first, then the host, then the engine: the host outlives the engine. There is one host
/// in a process. Everything runs on the thread of the application object.
class UIUTILSHOST_EXPORT Host : public QObject
{
    Q_OBJECT

public:
    explicit Host(QObject* parent = nullptr);
    /// Deletes the manifests, then the services of this process, whose settings are stored first.
    ~Host() override;

    /// Brings everything up; call it once, before the first page. A host that is up returns false and stays as it is.
    ///
    /// - The environment variable UIUTILS_ROOT becomes the root of the setup.
    /// - The language that suits the default QLocale best is chosen. Its translations are "uiutils_LANGUAGE.qm" and
    ///   "APPLICATION_LANGUAGE.qm", with the name of the application, from the installed folder
    ///   share/uiutils/translations, and all "NAME_LANGUAGE.qm" from the folders of the setup.
    ///   What services say is also translated by all "NAME_LANGUAGE.qm" in the folders "translations" of the service
    ///   folders, also where the services live in other processes.
    /// - KIV_PLATFORM chooses the services. "embedded", the default: the described services live in this process.
    ///   "bus": those of other processes are used, on the bus that KIV_BUS names, and only the application's own ones
    ///   are published there. The bus is asked to start what it can, for at most three seconds; later services are
    ///   added when they come.
    /// - Status icons and logo are copied below the root where they are missing. An existing file is never replaced.
    /// - The installed viewer of PDF files is linked below a root that has none, for Report::showPDF().
    ///
    /// Returns false when there is nothing that pages could use: the root cannot be used, KIV_PLATFORM is unknown, the
    /// bus cannot be reached, or there is no service at all. Everything that went wrong is printed on standard error,
    /// one line for each problem, and is in problems(), also when the result is true.
    [[nodiscard]] bool start(const HostSetup& setup = HostSetup());

    /// Changes the language of everything, also of pages that are shown; call it after start(). Returns false, and
    /// changes nothing, when there is no catalogue of that language. Languages has more about languages.
    bool setLanguage(const QString& code);

    /// Reads the service files again whenever one changes or is added, for whoever writes services while pages run:
    /// call it after start(). Items keep their values, quality and readiness, except those about which a file says
    /// something new; a file that cannot be used changes nothing. Does nothing where the services live in other
    /// processes. Emits serviceFilesRead(), and serviceAdded() for a service that is new. Catalogues beside the service
    /// files are followed too, wherever the services live.
    void followServiceFiles();

    /// What went wrong in start(), in words for users, with places and reasons; for a file of services, the file, the
    /// place in it and the reason.
    QStringList problems() const;

    /// Makes the services known to all pages of the engine: every item by its name (the last part of the service's
    /// name, "_", the item's name), and the manifests as members of `services`, as in
    /// `services.basemgr.startChanges()`. Adds the folder of the QML module to the import path. The engine must not
    /// have loaded a page yet and must be destroyed before this object.
    void showTo(QQmlEngine* engine);

    /// The services that have a manifest, in ascending order, also while they are away.
    QStringList serviceNames() const;

    /// The manifest of the service of that full name; null without one. Owned by this object.
    Manifest* manifest(const QString& service) const;

    /// The own side of a service that this process publishes, with which the application drives it; null for any other.
    /// Owned by the platform.
    kiv::embedded::EmbeddedService* ownService(const QString& name) const;

Q_SIGNALS:
    /// A service has come after start(). It has a manifest, and pages know its items.
    void serviceAdded(const QString& name);
    /// Service files were read again after a change. `problems` has a sentence for each file that cannot be used as it
    /// is now, with the place and the reason; it is empty when all is well.
    void serviceFilesRead(const QStringList& problems);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace uiutils
