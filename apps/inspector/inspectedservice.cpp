#include "inspectedservice.h"

#include "service/kivdata.h"
#include "service/manifest.h"
#include "texts.h"

#include <embedded/embeddedservice.h>
#include <kiv/kivclientinterface.h>

#include <QJsonDocument>

namespace uiutils::inspector {

using kiv::embedded::EmbeddedService;

namespace {

const QLatin1String settings(":config:");

/// What a user types: lists and records as JSON, everything else as it is.
QVariant typedValue(const QVariant& value)
{
    const QString text = value.toString().trimmed();
    if (!text.startsWith(QLatin1Char('[')) && !text.startsWith(QLatin1Char('{')))
        return value;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    return document.isNull() ? value : document.toVariant();
}

QVariant limitOf(const QString& text)
{
    return text.trimmed().isEmpty() ? QVariant() : QVariant(text.trimmed());
}

} // namespace

InspectedService::InspectedService(Manifest* manifest, const OwnSide& ownSide, QObject* parent)
    : QObject(parent)
    , m_manifest(manifest)
    , m_name(manifest->getServiceName())
    , m_ownSide(ownSide)
{
    m_pending.setManifests({QVariant::fromValue<QObject*>(manifest)});
    connect(manifest, &Manifest::isAvailableChanged, this, &InspectedService::changed);
    if (manifest->client())
        connect(manifest->client(), &KIVClientInterface::itemsChanged, this, &InspectedService::changed);
}

InspectedService::~InspectedService()
{
    blockSignals(true);
    setSlow(false);
    setRefusing(false);
    if (m_takenAway && m_takenAway == own())
        setAway(false);
}

bool InspectedService::isAvailable() const
{
    return m_manifest && m_manifest->isAvailable();
}

int InspectedService::itemCount() const
{
    return isAvailable() ? m_manifest->client()->getItemIds().size() : 0;
}

bool InspectedService::isSlow() const
{
    return m_slowed && m_slowed == own();
}

void InspectedService::setSlow(bool isSlow)
{
    EmbeddedService* const service = own();
    if (!service || isSlow == this->isSlow())
        return;
    if (isSlow)
        m_delayBefore = service->delay();
    service->setDelay(isSlow ? slowness : m_delayBefore);
    m_slowed = isSlow ? service : nullptr;
    Q_EMIT changed();
}

bool InspectedService::isRefusing() const
{
    return m_refusing && m_refusing == own();
}

void InspectedService::setRefusing(bool isRefusing)
{
    EmbeddedService* const service = own();
    if (!service || isRefusing == this->isRefusing())
        return;
    if (isRefusing)
        m_refusalsBefore.clear();
    const QStringList ids = service->itemIds(settings);
    for (const QString& id : ids) {
        if (isRefusing)
            m_refusalsBefore.insert(id, service->refusal(id));
        service->setRefusal(id, isRefusing ? Texts::tr("Rejected by hand") : m_refusalsBefore.value(id));
    }
    m_refusing = isRefusing ? service : nullptr;
    Q_EMIT changed();
}

bool InspectedService::isAway() const
{
    const EmbeddedService* const service = own();
    return service && !service->isReachable();
}

void InspectedService::setAway(bool isAway)
{
    EmbeddedService* const service = own();
    if (!service || isAway == this->isAway())
        return;
    m_takenAway = isAway ? service : nullptr;
    const QPointer<InspectedService> self(this);
    service->setReachable(!isAway);
    if (self)
        Q_EMIT changed();
}

QString InspectedService::nameOf(KivData* item) const
{
    return item ? item->getQmlTag() : QString();
}

bool InspectedService::setQuality(const QString& id, int quality)
{
    EmbeddedService* const service = own();
    return service && service->setQuality(id, KIVClientItem::Quality(quality));
}

bool InspectedService::setReady(const QString& id, bool isReady)
{
    EmbeddedService* const service = own();
    return service && service->setReady(id, isReady);
}

bool InspectedService::setApplicable(const QString& id, bool isApplicable)
{
    EmbeddedService* const service = own();
    return service && service->setApplicable(id, isApplicable);
}

QString InspectedService::setValue(const QString& id, const QVariant& value)
{
    EmbeddedService* const service = own();
    if (!service)
        return Texts::tr("The service does not live here.");
    const KIVClientItem* const item = service->item(id);
    const bool isText = item && item->getType() == KIVClientItem::TypeString;
    return service->setValue(id, isText ? value : typedValue(value)) ? QString()
                                                                     : Texts::tr("The item cannot have this value.");
}

QString InspectedService::setLimits(const QString& id, const QString& minimum, const QString& maximum)
{
    EmbeddedService* const service = own();
    return service && service->setRange(id, limitOf(minimum), limitOf(maximum))
            ? QString()
            : Texts::tr("The item cannot have these limits.");
}

} // namespace uiutils::inspector
