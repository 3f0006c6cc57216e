#pragma once

#include "itemstore_p.h"

#include <QJsonObject>
#include <QObject>
#include <QTimer>

namespace kiv::embedded {

/// Keeps the settings of a service that clients changed in a file, from one run to the next.
class StateKeeper : public QObject
{
    Q_OBJECT

public:
    /// Keeps the state of `items`, which must live as long as the keeper, in `folder`.
    StateKeeper(const QString& folder, const QString& service, ItemStore& items);

    /// Gives the settings the values of the state file. Returns a sentence for each that could not be taken.
    QStringList takeBack();

    /// Gives an item that came later the value that is kept for it, if it fits.
    void takeBack(ItemState& state);

    /// Keeps the value of an item that goes.
    void letGo(const ItemState& state);

    /// Writes the file when the event loop is reached; many changes make one file.
    void schedule();

    /// Writes it now if there is something to write. What fails is written after the next change.
    void flush();

    /// Stores all settings under a name of the user's. Returns whether that worked, else with the reason.
    bool saveConfiguration(const QString& name, QString* error) const;

Q_SIGNALS:
    void failed(const QString& reason);

private:
    QString fitted(ItemState& state, const QJsonValue& value);
    QJsonObject values() const;

    const QString m_folder;
    const QString m_service;
    ItemStore& m_items;
    /// What the file holds for items that are not there, or do not take it: it is not ours to drop.
    QJsonObject m_leftOver;
    QTimer m_timer;
    bool m_isDirty = false;
    /// The old file could neither be read nor moved away: it must not be overwritten.
    bool m_isBlocked = false;
};

} // namespace kiv::embedded
