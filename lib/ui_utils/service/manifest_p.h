#pragma once

#include "service/manifest.h"

#include <kiv/kivclientinterface.h>

#include <QPointer>
#include <QVector>

namespace uiutils {

/// What a manifest keeps of its service and its transaction.
class ManifestPrivate
{
public:
    explicit ManifestPrivate(Manifest* owner)
        : q(owner)
    {
    }

    /// Takes a wrapper that is about to go out of the registry.
    static void forget(const QString& id, const KivData* wrapper);

    QVector<QPointer<KivData>> wrappers() const;
    void registerItem(const QString& id);
    void bindItems();
    QString actionId(QLatin1String action) const;
    bool send(const QString& actionId, const QString& argument);

    QPointer<KIVClientInterface> client;
    QString name;
    QString manifestId;
    bool isChanging = false;
    QString qmlTag;

private:
    Manifest* q;
};

} // namespace uiutils
