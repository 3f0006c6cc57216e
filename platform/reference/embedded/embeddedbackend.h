#pragma once

#include <embedded/embedded_export.h>
#include <embedded/servicedescription.h>
#include <kiv/kivbackend.h>

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace kiv::embedded {

class EmbeddedService;

/// A back end whose services live in this process, described by service files.
///
/// Constructing it makes it the current back end. Its services, their items and the clients without a parent are
/// deleted with it; clients with a parent of their own then emit KIVClientInterface::itemsChanged() and are no longer
/// valid. A client survives the withdrawal of its service and finds the next one of that name.
class KIVEMBEDDED_EXPORT EmbeddedBackend final : public KIVBackend
{
public:
    /// The name under which the base manager is published.
    static const QLatin1String baseManagerName;

    EmbeddedBackend();
    ~EmbeddedBackend() override;

    /// Stores the settings that clients change in this folder, which is created when it is needed, one
    /// "SERVICE.state.json" for each service, and restores them in services that are published from now on. With an
    /// empty path nothing is stored. A file is written when control returns to the event loop, and before its service
    /// is removed. A failure is reported through KIVClientInterface::SigError() of the service's clients, and the write
    /// is tried again after the next change.
    void setStateFolder(const QString& path);

    /// What else a service file says, besides the service that it describes.
    struct FileExtras
    {
        /// Why the file cannot be used, the place in it first; empty when it can.
        QString problem;
        /// What is left out of the file, one sentence each.
        QStringList notes;
        /// Called with the service before clients see it. May be empty.
        std::function<void(EmbeddedService*)> begin;
    };
    /// Reads what else a file says. The file conforms to the schema, and `service` is what it describes.
    using FileReader = std::function<FileExtras(
            const QString& path, const QJsonObject& file, const ServiceDescription& service)>;

    /// Lets `reader` take part in the reading of every file that is loaded from now on; an empty one ends that.
    void setFileReader(const FileReader& reader);

    /// Publishes the service of every "*.service.json" file of the folders, in the order of the folders and, within
    /// one, of the file names. Returns one sentence for each folder or file that could not be used (file, place in it
    /// and reason), and for each stored value that could not be restored; everything else is published all the same.
    [[nodiscard]] QStringList loadFolders(const QStringList& folders);

    /// The folders in the environment variable KIV_SERVICES, separated by colons.
    static QStringList foldersFromEnvironment();

    /// Publishes the service of one file. Returns false, with the reason in `problem`, when the file cannot be used or
    /// a service of that name is published already. Problems of the stored state are added to `problem`, one in each
    /// line, and do not make the call fail.
    [[nodiscard]] bool loadFile(const QString& path, QString* problem = nullptr);

    /// Reads a file again and publishes its service anew, or for the first time. `document` is what the file said when
    /// it was loaded, and becomes what it says now: values, quality and readiness of items stay as they are, except
    /// those about which the file says something new. Returns false, with the reason in `problems`, when the file
    /// cannot be used; then everything stays as it was. Other problems are as for loadFile(). Clients emit
    /// itemsChanged().
    [[nodiscard]] bool reloadFile(const QString& path, QJsonObject* document, QStringList* problems);

    /// Publishes a service without a file. Returns null, with place and reason in `problem`, when the description is
    /// not valid or a service of that name is published already; other problems are as for loadFile(). Clients that had
    /// an earlier service of that name emit itemsChanged().
    EmbeddedService* publish(const ServiceDescription& description, QString* problem = nullptr);

    /// Removes a service; its settings are written first. Returns false when there is none of that name. Its clients
    /// emit itemsChanged() once and are not valid until a service of that name is published again.
    bool withdraw(const QString& name);

    /// The names of the published services in ascending order.
    QStringList serviceNames() const;

    /// The service's own side of a published service; null when it is not published.
    EmbeddedService* service(const QString& name) const;

    KIVClientInterface* baseManagerClient() override;
    KIVClientInterface* serviceClient(const QString& service, QObject* parent) override;
    BaseFormatter* createFormatter(const QString& name) const override;
    /// Answers for every path: only what a published service reports is mounted.
    std::optional<bool> isMounted(const QString& path) const override;

private:
    EmbeddedService* publish(const ServiceDescription& description, const QString& file, const FileExtras& extras,
            QStringList* problems);
    bool loadFile(const QString& path, QStringList* problems);
    struct CheckedFile;
    std::optional<CheckedFile> check(const QString& path, QStringList* problems) const;
    bool isFromElsewhere(const QString& service, const QString& path) const;

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace kiv::embedded
