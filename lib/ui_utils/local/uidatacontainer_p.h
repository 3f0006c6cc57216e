#pragma once

#include "local/uidatacontainer.h"

#include <QMultiHash>

namespace uiutils {

/// What a container knows about its items.
class UiDataContainerPrivate
{
public:
    explicit UiDataContainerPrivate(UiDataContainer* owner)
        : q(owner)
    {
    }

    static UiDataContainerPrivate* of(const UiDataContainer* container) { return container->d.get(); }

    void enter(const QString& id, UiData* item);
    void leave(UiData* item);

    QMap<QString, UiData*> items;
    /// The ids under which an item is entered.
    QMultiHash<UiData*, QString> ids;
    /// Number of mandatory items with a value that is not acceptable. Items count themselves, so that no change of a
    /// value has to visit all of them.
    int hindrances = 0;
    bool areItemsOk = false;
    QMap<QString, QVariant> persistentConfig;

private:
    UiDataContainer* q;
};

} // namespace uiutils
