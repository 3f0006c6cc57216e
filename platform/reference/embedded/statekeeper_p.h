#pragma once

#include "itemstore_p.h"

#include <QJsonObject>
#include <QObject>
#include <QTimer>

namespace kiv::embedded {

/// Stores the settings of a service that clients changed in a file, from one run to the next.
class StateKeeper : public QObject
{
    Q_OBJECT

public:
    /// Stores the state of `items`, which must outlive the keeper, in `folder`.
    StateKeeper(const QString& folder, const QString& service, ItemStore& items);

    /// Restores the settings from the state file. Returns a sentence for each value that could not be restored.
    QStringList takeBack();

    /// Restores the stored value of an item that was added later, if it fits.
    void takeBack(ItemState& state);

    /// Stores the value of an item that is removed.
    void letGo(const ItemState& state);

    /// Writes the file when control returns to the event loop; many changes are written once.
    void schedule();

    /// Writes the file now if there is something to write. After a failure the next change writes it.
    void flush();

    /// Stores all settings under a name that the user chose. Returns whether that succeeded, and the reason if not.
    bool saveConfiguration(const QString& name, QString* error) const;

Q_SIGNALS:
    void failed(const QString& reason);

private:
    QString fitted(ItemState& state, const QJsonValue& value);
    QJsonObject values() const;

    const QString m_folder;
    const QString m_service;
    ItemStore& m_items;
    /// Values in the file for items that do not exist, or reject them: they are not ours to discard.
    QJsonObject m_leftOver;
    QTimer m_timer;
    bool m_isDirty = false;
    /// The old file could be neither read nor renamed: it must not be overwritten.
    bool m_isBlocked = false;
};

} // namespace kiv::embedded
