#pragma once

#include "replay/playback_p.h"
#include "replay/player_p.h"

#include <embedded/embeddedbackend.h>

#include <QString>
#include <QStringList>

namespace uiutils::qmltool {

struct Options;

/// The services of a recording in place of those of service files. Make it before the host, which then finds them.
class ReplayDesk
{
public:
    /// Stands at the moment of the recording that the options name. Returns false, with the reason in `problem`, when
    /// there is no recording.
    bool open(const Options& options, QString* problem);

    QStringList services() const { return m_player.services(); }
    kiv::replay::Player* player() { return &m_player; }

    /// Plays on; the last moment stays.
    void play(const Options& options);

private:
    kiv::embedded::EmbeddedBackend m_backend;
    kiv::replay::Player m_player {&m_backend};
    kiv::replay::Playback m_playback {&m_player};
};

} // namespace uiutils::qmltool
