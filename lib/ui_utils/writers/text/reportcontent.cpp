#include "writers/text/reportcontent_p.h"

#include "core/status.h"
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
    return {word(QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Job Manager Information")),
            word(QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Value")), instrument::jobFields()};
}

InformationTable customerTable()
{
    return {word(QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Customer Information")),
            word(QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Value")),
            withoutDefaults(instrument::userFields(instrument::customerFieldNames()))};
}

InformationTable technicianTable()
{
    return {word(QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Technician Information")),
            word(QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Value")),
            withoutDefaults(instrument::userFields(instrument::technicianFieldNames()))};
}

InformationTable softwareTable()
{
    return {word(QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Software Revisions")),
            word(QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Version")), instrument::softwareRevisions()};
}

InformationTable configurationTable(const NodeReader& section, const NodeReader& report)
{
    InformationTable table {word(QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Configuration Values")),
            word(QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Value")), {}};
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
        return statusText(Status::Pass);
    case ReportStatus::Marginal:
        return statusText(Status::Marginal);
    case ReportStatus::Fail:
        return statusText(Status::Fail);
    case ReportStatus::NotCompleted:
        return word(QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Not Completed"));
    default:
        return {};
    }
}

QString statusText(int status)
{
    switch (status) {
    case Status::Pass:
        return word(QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Pass"));
    case Status::Marginal:
        return word(QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Marginal"));
    case Status::Fail:
        return word(QT_TRANSLATE_NOOP("TemplateToHtmlWriter", "Fail"));
    default:
        return {};
    }
}

QString dateText(const QDate& date)
{
    return date.toString(Qt::TextDate);
}

QString word(const char* text)
{
    return QCoreApplication::translate("TemplateToHtmlWriter", text);
}

} // namespace uiutils
