#include "linkbudget.h"

#include <embedded/embeddedbackend.h>

using kiv::embedded::ItemDescription;
using kiv::embedded::ServiceDescription;

const QString LinkBudget::name = QStringLiteral("linkbudget");

namespace {

const QString length = QStringLiteral(":config:linkbudget:link:length:");
const QString attenuation = QStringLiteral(":config:linkbudget:link:attenuation:");
const QString connectors = QStringLiteral(":config:linkbudget:link:connectors:");
const QString allowed = QStringLiteral(":config:linkbudget:limits:allowed:");
const QString loss = QStringLiteral(":result:linkbudget:link:loss:");
const QString suggestAction = QStringLiteral(":action:linkbudget:link:suggest:");

/// What one connector loses, in dB.
constexpr double connectorLoss = 0.3;
/// Within this distance of what is allowed, in dB, the loss is marginal.
constexpr double margin = 3;

ItemDescription item(const QString& id, const QString& type, const QString& label)
{
    ItemDescription description;
    description.id = id;
    description.type = type;
    description.label = label;
    return description;
}

/// A number from 0 to `maximum` that pages may set.
ItemDescription setting(
        const QString& id, const QString& label, const QString& unit, double value, double maximum, int decimals = 2)
{
    ItemDescription description = item(id, QStringLiteral("double"), label);
    description.unit = unit;
    description.value = value;
    description.minimum = 0;
    description.maximum = maximum;
    description.precision = decimals;
    return description;
}

ServiceDescription described()
{
    ServiceDescription description;
    description.service = LinkBudget::name;
    // Stands for the service itself: with it, pages can change several settings at once.
    description.items += item(QStringLiteral(":result:linkbudget:manifest:"), QStringLiteral("std::string"), {});
    description.items += setting(length, QObject::tr("Length"), QStringLiteral("km"), 40, 200);
    description.items += setting(attenuation, QObject::tr("Attenuation"), QStringLiteral("dB/km"), 0.22, 5);
    description.items += setting(connectors, QObject::tr("Connectors"), {}, 2, 100, 0);
    description.items += setting(allowed, QObject::tr("Allowed loss"), QStringLiteral("dB"), 15, 60);
    ItemDescription result = item(loss, QStringLiteral("double"), QObject::tr("Loss"));
    result.unit = QStringLiteral("dB");
    result.precision = 2;
    description.items += result;
    description.items += item(suggestAction, QStringLiteral("action"), QObject::tr("Suggest"));
    return description;
}

} // namespace

LinkBudget::LinkBudget(kiv::embedded::EmbeddedBackend& backend)
    : m_service(backend.publish(described()))
{
    Q_ASSERT_X(m_service, "LinkBudget", "published before");
    for (const QString& id : {length, attenuation, connectors, allowed})
        connect(m_service->item(id), &KIVClientItem::valueChanged, this, &LinkBudget::workOut);
    m_service->setActionHandler(suggestAction,
            [this](const QString& argument, QString* replyOrError) { return suggest(argument, replyOrError); });
    workOut();
}

double LinkBudget::setting(const QString& id) const
{
    return m_service->item(id)->getValue().toDouble();
}

void LinkBudget::workOut()
{
    const double value = setting(length) * setting(attenuation) + setting(connectors) * connectorLoss;
    const double spare = setting(allowed) - value;
    // First the verdict: whoever is notified of the value finds the verdict that belongs to it.
    m_service->setQuality(loss,
            spare < 0                ? KIVClientItem::QualityFailing
                    : spare < margin ? KIVClientItem::QualityWarning
                                     : KIVClientItem::QualityPassing);
    m_service->setValue(loss, value);
}

/// The attenuation that is usual at a wavelength in nm.
bool LinkBudget::suggest(const QString& wavelength, QString* replyOrError)
{
    const double usual = wavelength == QLatin1String("1310") ? 0.35 : wavelength == QLatin1String("1550") ? 0.22 : 0;
    if (usual <= 0) {
        *replyOrError = tr("Only 1310 nm and 1550 nm are known, not \"%1\".").arg(wavelength);
        return false;
    }
    m_service->setValue(attenuation, usual);
    *replyOrError = tr("At %1 nm a fiber loses about %2 dB/km.").arg(wavelength, QString::number(usual));
    return true;
}
