#include "player_p.h"

#include "replaytexts_p.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>

#include <QLocale>

#include <climits>
#include <utility>

namespace kiv::replay {

namespace {

constexpr int mostServices = 1000;

QString counted(qint64 number)
{
    return QLocale().toString(number);
}

} // namespace

Player::Player(embedded::EmbeddedBackend* backend)
    : m_backend(backend)
{
}

Player::~Player() = default;

bool Player::open(const QString& path, QString* problem)
{
    if (!m_reader.open(path, problem))
        return false;
    const QStringList names = m_reader.findServices(mostServices);
    for (const QString& name : names)
        publish(name);
    restart();
    advanceTo(0);
    if (!m_names.isEmpty())
        return true;
    *problem = ReplayTexts::tr("%1 has no service that can be replayed.").arg(path);
    return false;
}

embedded::EmbeddedService* Player::service(const QString& name) const
{
    const std::shared_ptr<ReplayedService> known = m_services.value(name);
    return known ? known->service() : nullptr;
}

std::optional<qint64> Player::nextTime() const
{
    return m_next ? std::optional<qint64>(m_next->time) : std::nullopt;
}

/// Makes the service, which nobody can reach. Null when the back end has one of that name already, or there are too
/// many.
ReplayedService* Player::publish(const QString& name)
{
    embedded::ServiceDescription description;
    description.service = name;
    embedded::EmbeddedService* const service
            = m_names.size() < mostServices ? m_backend->publish(description) : nullptr;
    if (!service)
        return nullptr;
    service->setReachable(false);
    const auto replayed = std::make_shared<ReplayedService>(service, &m_holdings, &m_troubles);
    m_services.insert(name, replayed);
    m_names += name;
    return replayed.get();
}

ReplayedService* Player::replayed(const QString& name)
{
    return m_services.value(name).get();
}

void Player::beginSnapshot(ReplayedService* service, const QString& name, int items)
{
    service->beginSnapshot();
    m_snapshot = service;
    m_snapshotName = name;
    m_missing = items;
    m_come += name;
}

void Player::endSnapshot()
{
    ReplayedService* const ended = std::exchange(m_snapshot, nullptr);
    m_snapshotName.clear();
    m_missing = 0;
    if (ended)
        ended->endSnapshot();
}

/// Returns false, having done nothing, when it has to wait for the next turn.
bool Player::apply(const Entry& entry, quint64 turn)
{
    ReplayedService* service = replayed(entry.service);
    if (entry.kind == Entry::Change) {
        if (service)
            return service->changeItem(entry, turn);
        ++m_troubles.unknown;
        return true;
    }
    // What went before an end or a snapshot is heard first.
    if (service && entry.kind != Entry::Item && service->hasChanged(turn))
        return false;
    const bool isBeginning = entry.kind == Entry::Snapshot || entry.kind == Entry::Item;
    if (!service && isBeginning)
        service = publish(entry.service);
    if (!service) {
        ++(isBeginning ? m_troubles.excess : m_troubles.unknown);
        return true;
    }
    // A recording may have lost the line before the first item.
    const bool isWithoutBeginning = entry.kind == Entry::Item && m_snapshot != service && service->service()
            && !service->service()->isReachable();
    if (entry.kind == Entry::Snapshot)
        beginSnapshot(service, entry.service, entry.fields.value(QLatin1String("snapshot")).toInt());
    else if (isWithoutBeginning)
        beginSnapshot(service, entry.service, INT_MAX);
    if (entry.kind == Entry::Item) {
        service->putItem(entry, turn);
        --m_missing;
    } else if (entry.kind == Entry::Removed) {
        service->removeItem(entry);
    } else if (entry.kind == Entry::Gone) {
        service->leave();
    } else if (entry.kind == Entry::Error) {
        service->reportError(entry);
    }
    return true;
}

bool Player::advanceTo(qint64 ms, Pace pace)
{
    const quint64 turn = pace == EachHeard ? ++m_turn : 0;
    for (;;) {
        const bool goesOn = m_missing > 0 && m_next && m_next->kind == Entry::Item && m_next->service == m_snapshotName;
        if (!goesOn)
            endSnapshot();
        if (!m_next || m_next->time > ms)
            break;
        if (!apply(*m_next, turn))
            return false;
        m_next = m_reader.next();
    }
    m_position = ms;
    return true;
}

void Player::restart()
{
    m_reader.rewind();
    m_troubles = PlayingTroubles();
    m_snapshot = nullptr;
    m_snapshotName.clear();
    m_missing = 0;
    m_come.clear();
    m_position = 0;
    m_next = m_reader.next();
}

void Player::seek(qint64 ms)
{
    if (ms < m_position) {
        restart();
        advanceTo(0);
        for (const QString& name : qAsConst(m_names)) {
            if (!m_come.contains(name))
                replayed(name)->leave();
        }
    }
    advanceTo(ms);
}

QString Player::troubles() const
{
    const ReadingTroubles reading = m_reader.troubles();
    QStringList texts;
    const auto tell = [&texts](qint64 number, const QString& text) {
        if (number > 0)
            texts += text.arg(counted(number));
    };
    tell(reading.broken, ReplayTexts::tr("broken lines: %1"));
    tell(reading.backwards, ReplayTexts::tr("lines whose time goes backwards: %1"));
    tell(m_troubles.unknown, ReplayTexts::tr("lines about items or services that are not there: %1"));
    tell(m_troubles.unfit, ReplayTexts::tr("lines that do not fit their item: %1"));
    tell(m_troubles.excess, ReplayTexts::tr("lines beyond the limits: %1"));
    if (reading.isCut)
        texts += ReplayTexts::tr("it ends in the middle");
    if (texts.isEmpty())
        return QString();
    return ReplayTexts::tr("The recording is not sound and was played as far as it can be: %1.")
            .arg(texts.join(QLatin1String(", ")));
}

} // namespace kiv::replay
