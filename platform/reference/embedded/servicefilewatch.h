#pragma once

#include <embedded/embedded_export.h>

#include <QObject>
#include <QStringList>

#include <memory>

namespace kiv::embedded {

class EmbeddedBackend;

/// Follows the service files of folders while their services run: for whoever writes them.
///
/// A file that has changed is read again and its service published anew; clients emit
/// KIVClientInterface::itemsChanged(). Values, quality and readiness stay as they are, except those about which the
/// file says something new. A file that was added is loaded. A file that cannot be used changes nothing, and neither
/// does the removal of one. Needs an event loop.
class KIVEMBEDDED_EXPORT ServiceFileWatch final : public QObject
{
    Q_OBJECT

public:
    /// Watches the folders from which the back end has loaded its services, and which must outlive the object.
    ServiceFileWatch(EmbeddedBackend* backend, const QStringList& folders, QObject* parent = nullptr);
    ~ServiceFileWatch() override;

Q_SIGNALS:
    /// Files were read again. `problems` has a sentence for each file that cannot be used as it is now (file, place in
    /// it and reason) or has a stored value that could not be restored; empty when all is well.
    void filesRead(const QStringList& problems);
    /// A service is published whose name was not published before.
    void serviceAdded(const QString& name);

private:
    void read(const QStringList& files);

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace kiv::embedded
