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

/// Local data items that belong together: one answer whether all of them may be used, one signal when any of them
/// changes, and the place where persistent items find their stored values.
class UIUTILS_EXPORT UiDataContainer : public QObject
{
    Q_OBJECT
    /// Whether every mandatory item's value is acceptable. False until the first item comes in. Worked out anew when an
    /// item comes in and when a value changes, not when an item's `valueOk` or `mandatory` alone does.
    Q_PROPERTY(bool allItemsOk READ getAllItemsOk NOTIFY allItemsOkChanged)

public:
    explicit UiDataContainer(QObject* parent = nullptr);
    ~UiDataContainer() override;

    /// The container of all items that QML declares, made by the first call; it lives as long as the process.
    static UiDataContainer* shared();

    bool getAllItemsOk() const;

    /// Takes an item in, as the child of the container, in place of any other with its id. A persistent item takes the
    /// stored value of its id. Emits valueChanged() once.
    void addItem(UiData* item);
    /// Takes an item out; it stays a child of the container. Nothing happens, and nobody is told, when it is not in.
    void removeItem(UiData* item);
    /// The items by their ids.
    QMap<QString, UiData*> getItems() const;

    /// Replaces the stored values, by item id; items that are in already keep theirs.
    void setPersistentConfigMap(QMap<QString, QVariant> values);

    static UiDataContainer* s_dcInstance;

Q_SIGNALS:
    void allItemsOkChanged();
    /// A value of an item has changed, or an item has come in.
    void valueChanged();

public Q_SLOTS:
    void slotValueUpdated();

private:
    friend class uiutils::UiDataContainerPrivate;
    const std::unique_ptr<uiutils::UiDataContainerPrivate> d;
};
