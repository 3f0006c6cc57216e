#pragma once

#include "core/uiutils_export.h"

#include <QMap>
#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>

class UiData;

namespace uiutils {
class UiDataContainerPrivate;
}

/// Local data items that belong together: one flag for whether all of them may be used, one signal when any of them
/// changes, and the place where persistent items find their stored values.
class UIUTILS_EXPORT UiDataContainer : public QObject
{
    Q_OBJECT
    /// Whether every mandatory item's value is acceptable. False until the first item is added. Updated when an item
    /// is added and when a value changes, but not when only an item's `valueOk` or `mandatory` changes.
    Q_PROPERTY(bool allItemsOk READ getAllItemsOk NOTIFY allItemsOkChanged)

public:
    explicit UiDataContainer(QObject* parent = nullptr);
    ~UiDataContainer() override;

    /// The container of all items that QML declares. The first call creates it; it lives as long as the process.
    static UiDataContainer* shared();

    bool getAllItemsOk() const;

    /// Adds an item as a child of the container, in place of any other with its id. A persistent item adopts the stored
    /// value of its id. Emits valueChanged() once.
    void addItem(UiData* item);
    /// Removes an item, which stays a child of the container. Emits nothing. Nothing happens if it is not in.
    void removeItem(UiData* item);
    /// The items by their ids.
    QMap<QString, UiData*> getItems() const;

    /// Replaces the stored values, by item id. Items that are in the container already keep their values.
    void setPersistentConfigMap(QMap<QString, QVariant> values);

    /// What shared() returns; null before its first call.
    static UiDataContainer* s_dcInstance;

Q_SIGNALS:
    void allItemsOkChanged();
    /// A value of an item has changed, or an item was added.
    void valueChanged();

public Q_SLOTS:
    /// Works `allItemsOk` out again, and emits valueChanged().
    void slotValueUpdated();

private:
    friend class uiutils::UiDataContainerPrivate;
    const std::unique_ptr<uiutils::UiDataContainerPrivate> d;
};
