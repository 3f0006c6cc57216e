#include "common/complaint.h"
#include "common/playtimes.h"
#include "common/termination.h"
#include "options.h"
#include "output.h"
#include "recording.h"
#include "texts.h"

#include "replay/playback_p.h"
#include "replay/player_p.h"

#include <bus/buspublisher.h>
#include <embedded/embeddedbackend.h>

#include <QSocketNotifier>

#include <unistd.h>

namespace uiutils::kivctl {

using kiv::bus::BusPublisher;
using kiv::replay::Playback;
using kiv::replay::Player;

namespace {

/// What a user types while a recording is played: an empty line pauses it or lets it go on, a number of seconds jumps
/// there.
class Keys : public QObject
{
public:
    explicit Keys(Playback* playback)
        : m_playback(playback)
        , m_input(STDIN_FILENO, QSocketNotifier::Read)
    {
        connect(&m_input, &QSocketNotifier::activated, this, &Keys::read);
    }

private:
    void read()
    {
        // A program in the background would be stopped for it.
        const bool isOthers = ::isatty(STDIN_FILENO) && ::tcgetpgrp(STDIN_FILENO) != ::getpgrp();
        char block[256];
        const ssize_t count = isOthers ? 0 : ::read(STDIN_FILENO, block, sizeof(block));
        if (count <= 0) {
            m_input.setEnabled(false);
            return;
        }
        m_typed.append(block, int(count));
        for (int end = m_typed.indexOf('\n'); end >= 0; end = m_typed.indexOf('\n')) {
            obey(m_typed.left(end).trimmed());
            m_typed.remove(0, end + 1);
        }
        // No line of ours is so long.
        if (m_typed.size() > int(sizeof(block)))
            m_typed.clear();
    }

    void obey(const QByteArray& line)
    {
        const std::optional<qint64> moment = apps::millisecondsOf(QString::fromUtf8(line));
        if (line.isEmpty())
            m_playback->setPaused(!m_playback->isPaused());
        else if (moment)
            m_playback->jumpTo(*moment);
        else
            complain(Texts::tr("An empty line pauses and goes on, a number of seconds jumps there."), apps::exitFailed);
    }

    Playback* const m_playback;
    QSocketNotifier m_input;
    QByteArray m_typed;
};

void complainOf(const BusPublisher& publisher)
{
    QObject::connect(
            &publisher, &BusPublisher::connectionFailed, &publisher, [last = QString()](const QString& reason) mutable {
                if (reason != last)
                    complain(reason, exitUnreachable);
                last = reason;
            });
    QObject::connect(&publisher, &BusPublisher::nameTaken, &publisher, [](const QString& name) {
        complain(Texts::tr("Another program publishes the service %1. The recorded one takes over when that ends.")
                         .arg(name),
                apps::exitFailed);
    });
}

bool publishAll(BusPublisher* publisher, const Player& player)
{
    bool isAny = false;
    const QStringList names = player.services();
    for (const QString& name : names) {
        QString problem;
        const bool isPublished = publisher->publish(player.service(name), &problem);
        isAny = isAny || isPublished;
        if (!isPublished)
            complain(problem, apps::exitFailed);
    }
    return isAny;
}

int complainOfTroubles(const Player& player)
{
    const QString troubles = player.troubles();
    return troubles.isEmpty() ? apps::exitDone : complain(troubles, apps::exitDone);
}

} // namespace

int replay(const Options& options)
{
    const apps::Termination termination;
    QObject::connect(&termination, &apps::Termination::requested, qApp, &QCoreApplication::quit);
    kiv::embedded::EmbeddedBackend backend;
    Player player(&backend);
    QString problem;
    if (!player.open(options.operands.constFirst(), &problem))
        return complain(problem, apps::exitFailed);
    player.seek(options.fromMs);
    if (options.fromMs > 0 && !player.nextTime() && !options.isPaused) {
        complainOfTroubles(player);
        return complain(Texts::tr("The recording ends before that moment."), apps::exitFailed);
    }
    BusPublisher publisher;
    complainOf(publisher);
    if (!publishAll(&publisher, player))
        return apps::exitFailed;
    Playback playback(&player);
    playback.setSpeed(options.speed);
    playback.setLooped(options.isLooped);
    playback.setPaused(options.isPaused);
    QObject::connect(&playback, &Playback::ended, qApp, &QCoreApplication::quit);
    const Keys keys(&playback);
    QCoreApplication::exec();
    return complainOfTroubles(player);
}

} // namespace uiutils::kivctl
