#include "report/jobreport_p.h"

#include "base/paths_p.h"
#include "core/itemids_p.h"
#include "instrument/job_p.h"
#include "report/reporttexts_p.h"

#include <kiv/kivclientinterface.h>
#include <kiv/schemavalidator.h>

namespace uiutils {

namespace {

/// Why the schema does not allow the report; empty if it does.
QString schemaProblem(const QByteArray& xml, const QString& schemaPath)
{
    if (schemaPath.isEmpty())
        return QString();
    SchemaValidator validator;
    if (!validator.setSchemaFile(onDisk(schemaPath))) {
        return ReportTexts::tr("The schema %1 cannot be used: %2")
                .arg(schemaPath, validator.errors().join(QLatin1Char('\n')));
    }
    if (validator.validate(xml))
        return QString();
    return ReportTexts::tr("The report does not match the job schema: %1")
            .arg(validator.errors().join(QLatin1Char('\n')));
}

/// Attaches the report. Why the base manager has rejected it; empty if it has not.
QString rejection(const QByteArray& xml)
{
    KIVClientInterface* client = KIVClientInterface::getBaseMgrClient();
    if (!client || !instrument::isJobActive())
        return ReportTexts::tr("There is no active job");
    if (client->sendAction(itemids::attachReport, QString::fromUtf8(xml), nullptr, KIVClientInterface::callTimeout))
        return QString();
    return ReportTexts::tr("The job has rejected the report: %1").arg(client->getLastError());
}

} // namespace

bool attachToJob(const QByteArray& xml, const QString& schemaPath, QString* reason)
{
    QString problem;
    // Without a job it does not matter what is wrong with the report.
    if (instrument::isJobActive())
        problem = schemaProblem(xml, schemaPath);
    if (problem.isEmpty())
        problem = rejection(xml);
    if (reason)
        *reason = problem;
    return problem.isEmpty();
}

} // namespace uiutils
