#pragma once

#include "replay/recordingentry_p.h"

#include <embedded/servicedescription.h>

#include <QHash>
#include <QPointer>
#include <QSet>

namespace kiv::embedded {
class EmbeddedService;
}

namespace kiv::replay {

/// What a player could not use of a recording.
struct PlayingTroubles
{
    /// Lines about items or services that are not there.
    qint64 unknown = 0;
    /// Values and descriptions that do not fit; the item stays as it was.
    qint64 unfit = 0;
    /// Lines that were left out because memory or numbers have limits.
    qint64 excess = 0;
};

/// What all services of a player hold together.
struct Holdings
{
    int items = 0;
    qint64 bytes = 0;
};

/// A service of a recording, driven as the recorded one was.
class ReplayedService
{
public:
    ReplayedService(embedded::EmbeddedService* service, Holdings* holdings, PlayingTroubles* troubles);

    /// Items follow that are all of the service's.
    void beginSnapshot();
    /// Removes what the snapshot does not have; clients reach the service.
    void endSnapshot();
    /// The service vanishes, with everything that it had in memory for the clients.
    void leave();
    void reportError(const Entry& entry);

    void putItem(const Entry& entry, quint64 turn);
    void removeItem(const Entry& entry);
    /// Changes an item. Returns false, and changes nothing, when it has changed in that turn; 0 is no turn.
    bool changeItem(const Entry& entry, quint64 turn);
    /// Whether something has changed in that turn; 0 is no turn.
    bool hasChanged(quint64 turn) const { return turn != 0 && m_turn == turn; }

    embedded::EmbeddedService* service() const;

private:
    struct Item
    {
        /// What cannot be changed while the item lives.
        QByteArray nature;
        QVariantMap attributes;
        /// About how much memory the description takes without the value, and the value.
        qint64 described = 0;
        qint64 valued = 0;
        quint64 turn = 0;
    };

    bool makeRoom(const Item& now, Item* held) const;
    void addItem(const embedded::ItemDescription& description, const Item& item);
    void forget(const QString& id);
    void update(const embedded::ItemDescription& description, Item* item);
    bool apply(const QString& id, const QJsonObject& fields) const;
    bool applyState(const QString& id, const QJsonObject& fields) const;

    const QPointer<embedded::EmbeddedService> m_service;
    Holdings* const m_holdings;
    PlayingTroubles* const m_troubles;
    QHash<QString, Item> m_items;
    /// The last one in which something changed.
    quint64 m_turn = 0;
    bool m_isInSnapshot = false;
    QSet<QString> m_inSnapshot;
};

} // namespace kiv::replay
