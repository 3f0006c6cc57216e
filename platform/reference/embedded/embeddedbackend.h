#pragma once

#include <embedded/embedded_export.h>
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
/// with it.
class KIVEMBEDDED_EXPORT EmbeddedBackend final : public KIVBackend
{
public:
    /// The name under which the base manager is published.
    static const QLatin1String baseManagerName;

    EmbeddedBackend();
    ~EmbeddedBackend() override;

    /// Publishes the service of every "*.service.json" file of the folders, in the order of the folders and, within
    /// one, of the file names. Returns one sentence for each folder or file that could not be used (file, place in
    /// it and reason); what could be used is published all the same.
    QStringList loadFolders(const QStringList& folders);

    /// The folders that the environment variable KIV_SERVICES names, separated by colons.
    static QStringList foldersFromEnvironment();

    /// Publishes the service of one file. Returns false, with the reason in `problem`, when the file cannot be used
    /// or a service of that name is published already.
    bool loadFile(const QString& path, QString* problem = nullptr);

    /// The published services' names in ascending order.
    QStringList serviceNames() const;

    /// The service's own side of a published service, or null.
    EmbeddedService* service(const QString& name) const;

    KIVClientInterface* baseManagerClient() override;
    KIVClientInterface* serviceClient(const QString& service, QObject* parent) override;
    BaseFormatter* createFormatter(const QString& name) const override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace kiv::embedded
