#pragma once

#include <kiv/kivclientinterface.h>

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVector>

class KivData;
class Manifest;

namespace uiutils {

/// What wrappers read of the manifest that owns them. It has a header of its own because the manifest makes wrappers of
/// every kind: with this, they need not know it.
struct ManifestState
{
    QPointer<KIVClientInterface> client;
    /// Begins the names of the items in QML; never empty for a service with a name.
    QString qmlTag;
    /// A transaction runs: what is written is held back.
    bool isChanging = false;
};

// The manifest defines these, because only there a manifest is known as an object.

/// The state of the manifest that is the parent of a wrapper; null for any other object and for null.
const ManifestState* manifestState(const QObject* parent);
Manifest* toManifest(QObject* parent);
QObject* toObject(Manifest* manifest);

/// All manifests of the process, in the order of their construction.
const QVector<Manifest*>& allManifests();
/// Begins or ends a transaction, and leaves all changes as they are.
void setChanging(Manifest* manifest, bool isChanging);
/// Sends the pending ones of these changes to the service of the manifest, as Manifest::applyChanges() does with all of
/// the process. False if the service rejects them; then they are still pending.
bool sendChanges(Manifest* manifest, const QVector<QPointer<KivData>>& wrappers);

} // namespace uiutils
