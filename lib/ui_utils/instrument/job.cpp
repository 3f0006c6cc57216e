#include "instrument/job_p.h"

#include "core/itemids_p.h"
#include "instrument/basemanager_p.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QCoreApplication>
#include <QStringList>

namespace uiutils::instrument {

namespace {

struct JobItem
{
    QLatin1String id;
    const char* label;
};

QString valueOf(const KIVClientInterface* client, QLatin1String id)
{
    const KIVClientItem* item = client ? client->getItem(id) : nullptr;
    return item ? item->getValue().toString() : QString();
}

LabelledTexts jobFields()
{
    static const JobItem items[] = {
            {itemids::jobId, QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Job ID")},
            {itemids::jobBan, QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Job BAN")},
            {itemids::jobTechnician, QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Job Technician")},
    };
    LabelledTexts fields;
    for (const JobItem& job : items) {
        if (const KIVClientItem* item = baseManagerItem(job.id))
            fields.append({QCoreApplication::translate("TemplateToHtmlWriter", job.label), item->getValueString()});
    }
    return fields;
}

JobFacts readFacts()
{
    return {isJobActive(), baseManagerText(itemids::jobId), jobFields(), workOrder()};
}

const HeldJob* newestHeld = nullptr;

} // namespace

bool isJobActive()
{
    return baseManagerValue(itemids::jobActive).toBool();
}

JobFacts jobFacts()
{
    return newestHeld ? newestHeld->m_facts : readFacts();
}

HeldJob::HeldJob()
    : m_facts(readFacts())
    , m_outer(newestHeld)
{
    newestHeld = this;
}

HeldJob::~HeldJob()
{
    newestHeld = m_outer;
}

QString jobSummary()
{
    static const JobItem items[] = {
            {itemids::jobId, QT_TRANSLATE_NOOP("Report", "ID: ")},
            {itemids::jobTechnician, QT_TRANSLATE_NOOP("Report", "Tech: ")},
            {itemids::jobBan, QT_TRANSLATE_NOOP("Report", "BAN: ")},
    };
    QStringList parts;
    for (const JobItem& job : items) {
        const KIVClientItem* item = isJobActive() ? baseManagerItem(job.id) : nullptr;
        const QString text = item ? item->getValueString().simplified() : QString();
        if (!text.isEmpty())
            parts += QCoreApplication::translate("Report", job.label) + text;
    }
    return parts.join(QLatin1String(", "));
}

QMap<QString, QString> workOrder()
{
    const KIVClientInterface* client = KIVClientInterface::getSessionBusClient(itemids::workflowManager);
    const QString order = valueOf(client, itemids::activeWorkOrder);
    if (order.isEmpty() || valueOf(client, itemids::workflowSession) != qEnvironmentVariable("UIUTILS_SESSION"))
        return {};
    return {{QStringLiteral("wo"), order}, {QStringLiteral("workflowId"), valueOf(client, itemids::activeWorkflow)}};
}

} // namespace uiutils::instrument
