#include "writers/text/reportcontent_p.h"

#include "core/status.h"
#include "core/statusword_p.h"
#include "document/documentreader_p.h"
#include "instrument/job_p.h"
#include "instrument/people_p.h"
#include "instrument/unit_p.h"

#include <QCoreApplication>

namespace uiutils {

namespace {

/// Fields of a person that nobody filled in hold "default".
instrument::LabelledTexts withoutDefaults(instrument::LabelledTexts fields)
{
    for (instrument::LabelledText& field : fields) {
        if (field.text == QLatin1String("default"))
            field.text.clear();
    }
    return fields;
}

} // namespace

InformationTable jobTable()
{
    return {ReportWords::tr("Job Manager Information"), ReportWords::tr("Value"), instrument::jobFacts().fields};
}

InformationTable customerTable()
{
    return {ReportWords::tr("Customer Information"), ReportWords::tr("Value"),
            withoutDefaults(instrument::userFields(instrument::customerFieldNames()))};
}

InformationTable technicianTable()
{
    return {ReportWords::tr("Technician Information"), ReportWords::tr("Value"),
            withoutDefaults(instrument::userFields(instrument::technicianFieldNames()))};
}

InformationTable softwareTable()
{
    return {ReportWords::tr("Software Revisions"), ReportWords::tr("Version"), instrument::softwareRevisions()};
}

InformationTable configurationTable(const NodeReader& section, const NodeReader& report)
{
    InformationTable table {ReportWords::tr("Configuration Values"), ReportWords::tr("Value"), {}};
    const QString module = section.text(keys::configModule);
    if (module.isEmpty())
        return table;
    const QString own = section.text(keys::service);
    const QString service = own.isEmpty() ? report.text(keys::service) : own;
    table.rows = instrument::configurationValues(instrument::settingsOf(service), module);
    return table;
}

QString overallText(ReportStatus status)
{
    switch (status) {
    case ReportStatus::Pass:
        return statusWord(Status::Pass);
    case ReportStatus::Marginal:
        return statusWord(Status::Marginal);
    case ReportStatus::Fail:
        return statusWord(Status::Fail);
    case ReportStatus::NotCompleted:
        return ReportWords::tr("Not Completed");
    default:
        return {};
    }
}

QString dateText(const QDate& date)
{
    return date.toString(Qt::TextDate);
}

} // namespace uiutils
