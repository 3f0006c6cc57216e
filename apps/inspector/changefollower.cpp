#include "changefollower.h"

#include "itemtext.h"
#include "service/kivdata.h"
#include "service/manifest.h"
#include "texts.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <limits>

namespace uiutils::inspector {

namespace {

constexpr int itemsAtATime = 500;
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

QString pageName(const QString& id)
{
    const KivData* const item = Manifest::getKivData(id);
    const QString name = item ? item->getQmlTag() : QString();
    return name.isEmpty() ? id : name;
}

double numberOf(const KIVClientItem& item)
{
    switch (item.getType()) {
    case KIVClientItem::TypeBool:
    case KIVClientItem::TypeInt:
    case KIVClientItem::TypeUInt:
    case KIVClientItem::TypeDouble:
        return item.getValue().isValid() ? item.getValue().toDouble() : noNumber;
    default:
        return noNumber;
    }
}

QString qualityWord(int quality)
{
    switch (quality) {
    case KIVClientItem::QualityPassing:
        return Texts::tr("Passing");
    case KIVClientItem::QualityWarning:
        return Texts::tr("Warning");
    case KIVClientItem::QualityFailing:
        return Texts::tr("Failing");
    default:
        return Texts::tr("None");
    }
}

} // namespace

ChangeFollower::ChangeFollower(KIVClientInterface* client, ChangeLog* log, QObject* parent)
    : QObject(parent)
    , m_client(client)
    , m_log(log)
    , m_wasValid(client->isValid())
{
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &ChangeFollower::listenToSome);
    connect(client, &KIVClientInterface::itemsChanged, this, &ChangeFollower::noteItems);
    connect(client, &KIVClientInterface::SigError, this, [this](const QString& error) {
        m_log->add({ChangeLog::Error, m_client->getServiceName(), m_client->getServiceName(), error});
    });
    m_waiting = client->getItemIds();
    m_ids = QSet<QString>(m_waiting.begin(), m_waiting.end());
    m_timer.start();
}

void ChangeFollower::noteItems()
{
    const QStringList ids = m_client->getItemIds();
    const QSet<QString> now(ids.begin(), ids.end());
    const bool isValid = m_client->isValid();
    if (isValid != m_wasValid) {
        noteService(m_client->getServiceName(),
                isValid ? Texts::tr("The service has come") : Texts::tr("The service has gone"));
    } else {
        const QSet<QString> come = QSet<QString>(now).subtract(m_ids);
        const QSet<QString> gone = QSet<QString>(m_ids).subtract(now);
        for (const QString& id : come)
            noteService(id, Texts::tr("The item has come"));
        for (const QString& id : gone)
            noteService(id, Texts::tr("The item has gone"));
    }
    m_wasValid = isValid;
    m_ids = now;
    m_waiting = ids;
    m_timer.start();
}

void ChangeFollower::listenToSome()
{
    for (int i = 0; i < itemsAtATime && m_client && !m_waiting.isEmpty(); ++i) {
        const QString id = m_waiting.takeLast();
        KIVClientItem* const item = m_client->getItem(id);
        Heard& heard = m_heard[id];
        if (!item || heard.item == item)
            continue;
        heard = {item, pageName(id)};
        listenTo(item);
    }
    if (m_waiting.isEmpty() || !m_client)
        m_timer.stop();
}

void ChangeFollower::listenTo(KIVClientItem* item)
{
    connect(item, &KIVClientItem::valueChanged, this, &ChangeFollower::noteValue);
    connect(item, &KIVClientItem::unitsChanged, this, &ChangeFollower::noteUnit);
    connect(item, &KIVClientItem::isReadyChanged, this, &ChangeFollower::noteReadiness);
    connect(item, &KIVClientItem::qualityChanged, this, &ChangeFollower::noteQuality);
    connect(item, &KIVClientItem::isApplicableChanged, this, &ChangeFollower::noteApplicability);
}

const KIVClientItem* ChangeFollower::reporter() const
{
    return qobject_cast<const KIVClientItem*>(sender());
}

void ChangeFollower::note(ChangeLog::Kind kind, const KIVClientItem& item, const QString& text)
{
    const QString id = item.getId();
    m_log->add({kind, id, m_heard.value(id).name, text, kind == ChangeLog::Value ? numberOf(item) : noNumber});
}

/// A service, or an item as a whole.
void ChangeFollower::noteService(const QString& id, const QString& text)
{
    const QString known = m_heard.value(id).name;
    m_log->add({ChangeLog::Service, id, known.isEmpty() ? pageName(id) : known, text});
}

void ChangeFollower::noteValue()
{
    // A paused log needs no text, which may take longer than the change.
    if (const KIVClientItem* const item = reporter())
        note(ChangeLog::Value, *item, m_log->isPaused() ? QString() : shortText(*item));
}

void ChangeFollower::noteUnit()
{
    if (const KIVClientItem* const item = reporter())
        note(ChangeLog::Unit, *item, item->getUnitString());
}

void ChangeFollower::noteReadiness()
{
    if (const KIVClientItem* const item = reporter())
        note(ChangeLog::Readiness, *item, item->isReady() ? Texts::tr("Ready") : Texts::tr("Not ready"));
}

void ChangeFollower::noteQuality()
{
    if (const KIVClientItem* const item = reporter())
        note(ChangeLog::Quality, *item, qualityWord(item->getQualityCode()));
}

void ChangeFollower::noteApplicability()
{
    if (const KIVClientItem* const item = reporter())
        note(ChangeLog::Applicability, *item,
                item->isApplicable() ? Texts::tr("Applicable") : Texts::tr("Not applicable"));
}

} // namespace uiutils::inspector
