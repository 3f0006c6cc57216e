#include "replaydesk.h"

#include "common/complaint.h"
#include "options.h"

#include <QObject>

namespace uiutils::qmltool {

bool ReplayDesk::open(const Options& options, QString* problem)
{
    if (!m_player.open(options.recording, problem))
        return false;
    m_player.seek(options.fromMs);
    return true;
}

void ReplayDesk::play(const Options& options)
{
    QObject::connect(&m_playback, &kiv::replay::Playback::ended, &m_playback, [this] {
        const QString troubles = m_player.troubles();
        if (!troubles.isEmpty())
            apps::complain(troubles);
    });
    m_playback.setSpeed(options.speed);
    m_playback.setLooped(options.isLooped);
    m_playback.jumpTo(options.fromMs);
    m_playback.setPaused(false);
}

} // namespace uiutils::qmltool
