#pragma once

#include <embedded/embedded_export.h>
#include <embedded/servicedescription.h>
#include <kiv/kivbackend.h>

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace kiv::embedded {

class EmbeddedService;

/// A back end whose services live in this process, described by service files.
///
/// Constructing it makes it the current back end. Its services, their items and the clients without a parent go
/// with it; clients with a parent of their own hear KIVClientInterface::itemsChanged() then and are not valid any more.
/// A client stays good over the withdrawal of its service and finds the next one of that name.
class KIVEMBEDDED_EXPORT EmbeddedBackend final : public KIVBackend
{
public:
    /// The name under which the base manager is published.
    static const QLatin1String baseManagerName;

    EmbeddedBackend();
    ~EmbeddedBackend() override;

    /// Keeps the settings that clients change in this folder, made when it is needed, one "SERVICE.state.json" for each
    /// service, and gives them to services that are published from now on; an empty path keeps nothing. A file is
    /// written when the event loop is reached, and before its service goes. One that cannot be written is reported
    /// through KIVClientInterface::SigError() of the service's clients and tried again after the next change.
    void setStateFolder(const QString& path);

    /// Publishes the service of every "*.service.json" file of the folders, in the order of the folders and, within
    /// one, of the file names. Returns one sentence for each folder or file that could not be used (file, place in
    /// it and reason), and for each kept value that could not be taken back; what could be used is published all the
    /// same.
    QStringList loadFolders(const QStringList& folders);

    /// The folders that the environment variable KIV_SERVICES names, separated by colons.
    static QStringList foldersFromEnvironment();

    /// Publishes the service of one file. Returns false, with the reason in `problem`, when the file cannot be used
    /// or a service of that name is published already. Problems of the kept state are told there too, a line each, and
    /// hinder nothing.
    bool loadFile(const QString& path, QString* problem = nullptr);

    /// Publishes a service without a file. Returns null, with place and reason in `problem`, when the description is
    /// not sound or a service of that name is published already; what `problem` says otherwise is as for loadFile().
    /// Clients that had an earlier service of that name emit itemsChanged().
    EmbeddedService* publish(const ServiceDescription& description, QString* problem = nullptr);

    /// Ends a service; its settings are written first. Returns false when there is none of that name. Its clients emit
    /// itemsChanged() once and are not valid until a service of that name is published again.
    bool withdraw(const QString& name);

    /// The published services' names in ascending order.
    QStringList serviceNames() const;

    /// The service's own side of a published service, or null.
    EmbeddedService* service(const QString& name) const;

    KIVClientInterface* baseManagerClient() override;
    KIVClientInterface* serviceClient(const QString& service, QObject* parent) override;
    BaseFormatter* createFormatter(const QString& name) const override;
    /// Knows of every path: nothing is mounted but what a published service says is.
    std::optional<bool> isMounted(const QString& path) const override;

private:
    EmbeddedService* publish(const ServiceDescription& description, const QString& file, QStringList* problems);
    bool loadFile(const QString& path, QStringList* problems);

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace kiv::embedded
