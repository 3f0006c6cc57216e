#pragma once

#include <kiv/kiv_export.h>

#include <QString>

#include <optional>

class BaseFormatter;
class KIVClientInterface;
class QObject;

/// What answers the static entry points of this library.
///
/// A host registers one back end before it creates its first page, and keeps it until the last page is deleted. Without
/// one every entry point gives its neutral answer (null, the local clock, the system's mounts).
class KIV_EXPORT KIVBackend
{
public:
    /// Registers nothing; see setCurrent().
    KIVBackend();
    /// Unregisters the back end when it is the current one.
    virtual ~KIVBackend();
    Q_DISABLE_COPY_MOVE(KIVBackend)

    /// Makes `backend` the one that the entry points call; null for none. The caller keeps ownership.
    static void setCurrent(KIVBackend* backend);
    /// The back end that the entry points call; null without one.
    static KIVBackend* current();

    /// See KIVClientInterface::getBaseMgrClient().
    virtual KIVClientInterface* baseManagerClient() = 0;

    /// See KIVClientInterface::getSessionBusClient().
    virtual KIVClientInterface* serviceClient(const QString& service, QObject* parent) = 0;

    /// See getFormatter(). A back end without formatters need not override it.
    virtual BaseFormatter* createFormatter(const QString& name) const;

    /// Whether a drive is mounted at `path`, an absolute path without a final slash; see FileSystemUsage::isMounted().
    /// A back end that leaves the answer to the system's mount table returns no value, and need not override this.
    virtual std::optional<bool> isMounted(const QString& path) const;
};
