#pragma once

#include "replay/recordingreader_p.h"
#include "replay/replayedservice_p.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <memory>
#include <optional>

namespace kiv::embedded {
class EmbeddedBackend;
class EmbeddedService;
} // namespace kiv::embedded

namespace kiv::replay {

/// Plays a recording: publishes its services on a back end of this process and changes them as they were changed, up to
/// whatever moment it is told. It has no clock; see Playback.
///
/// Settings accept what clients write, until the recording changes them; actions are rejected in words. What cannot be
/// used of a recording is counted and left out. The back end must outlive the player, which leaves the services there.
class Player : public QObject
{
    Q_OBJECT

public:
    /// How changes are applied that are due at once.
    enum Pace {
        /// All of them.
        AtOnce,
        /// Each item changes once before control returns to the event loop, so that clients in other processes, which
        /// are told of a turn as a whole, hear of every change.
        EachHeard,
    };

    explicit Player(embedded::EmbeddedBackend* backend);
    ~Player() override;

    /// Opens a recording and publishes its services as they were at its beginning; those that came later cannot be
    /// reached yet. Returns false, with the reason in `problem`, when the file is no recording or has no service.
    /// Looking through a long recording takes a few seconds for each gigabyte.
    bool open(const QString& path, QString* problem);

    /// The services that have been published, in the order of the recording.
    QStringList services() const { return m_names; }
    embedded::EmbeddedService* service(const QString& name) const;

    /// Applies everything up to `ms` milliseconds after the beginning of the recording. Returns false when there is
    /// more to be done at that pace: let the event loop run and call again.
    bool advanceTo(qint64 ms, Pace pace = AtOnce);

    /// Goes to a moment, back to the beginning first if it is an earlier one. Clients hear of what differs.
    void seek(qint64 ms);

    /// The moment of the last call.
    qint64 position() const { return m_position; }
    /// The moment of what comes next; nothing at the end of the recording.
    std::optional<qint64> nextTime() const;

    /// What was wrong with the recording so far, in words; empty if nothing was.
    QString troubles() const;

private:
    ReplayedService* replayed(const QString& name);
    ReplayedService* publish(const QString& name);
    void beginSnapshot(ReplayedService* service, const QString& name, int items);
    void endSnapshot();
    bool apply(const Entry& entry, quint64 turn);
    void restart();

    embedded::EmbeddedBackend* const m_backend;
    RecordingReader m_reader;
    std::optional<Entry> m_next;
    QHash<QString, std::shared_ptr<ReplayedService>> m_services;
    QStringList m_names;
    /// The service whose snapshot is being read, or null.
    ReplayedService* m_snapshot = nullptr;
    QString m_snapshotName;
    /// How many of its items are still to come.
    int m_missing = 0;
    /// The services that have come since the beginning.
    QSet<QString> m_come;
    Holdings m_holdings;
    PlayingTroubles m_troubles;
    qint64 m_position = 0;
    quint64 m_turn = 0;
};

} // namespace kiv::replay
