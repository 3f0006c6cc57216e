#include "report/reportformats_p.h"

#include "local/uidata.h"
#include "report/report.h"
#include "report/reporttexts_p.h"

namespace uiutils {

const QList<ReportFormat>& allReportFormats()
{
    using namespace NSReport;
    static const QList<ReportFormat> formats {
            {REPORT_FORMAT_PDF, QT_TRANSLATE_NOOP("Report", "PDF"), "REPORT_FORMAT_PDF", pdfSuffix,
                    &Report::writePDFReport, true},
            {REPORT_FORMAT_XML, QT_TRANSLATE_NOOP("Report", "XML"), "REPORT_FORMAT_XML", xmlSuffix,
                    &Report::writeXmlReport, true},
            {REPORT_FORMAT_HTML, QT_TRANSLATE_NOOP("Report", "HTML"), "REPORT_FORMAT_HTML", htmlSuffix,
                    &Report::writeHtmlReport, false},
            {REPORT_FORMAT_TEXT, QT_TRANSLATE_NOOP("Report", "TEXT"), "REPORT_FORMAT_TEXT", textSuffix,
                    &Report::writeTxtReport, false},
            {REPORT_FORMAT_JSON, QT_TRANSLATE_NOOP("Report", "JSON"), "REPORT_FORMAT_JSON", jsonSuffix,
                    &Report::writeJsonReport, false},
            {REPORT_FORMAT_ALL, QT_TRANSLATE_NOOP("Report", "ALL"), "REPORT_FORMAT_ALL", QLatin1String(), nullptr,
                    false},
    };
    return formats;
}

const ReportFormat* reportFormat(int value)
{
    for (const ReportFormat& format : allReportFormats()) {
        if (format.value == value)
            return &format;
    }
    return nullptr;
}

ReportFormats formatsToWrite(int format, const UiData* item)
{
    if (const ReportFormat* chosen = reportFormat(format); chosen && chosen->writer)
        return {chosen};
    ReportFormats formats;
    const UiDataEnums* choices = item ? item->getUiEnumList() : nullptr;
    if (format != NSReport::REPORT_FORMAT_ALL || !choices)
        return formats;
    const QList<UiEnumType*> choiceList = choices->getEnumList();
    for (const ReportFormat& candidate : allReportFormats()) {
        for (const UiEnumType* choice : choiceList) {
            if (candidate.writer && choice->getValue() == candidate.value && choice->isApplicable())
                formats.append(&candidate);
        }
    }
    return formats;
}

void addFormatChoices(UiData& item)
{
    QList<int> values;
    QStringList labels;
    QStringList names;
    for (const ReportFormat& format : allReportFormats()) {
        values.append(format.value);
        labels.append(ReportTexts::tr(format.label));
        names.append(QLatin1String(format.name));
    }
    item.setUiEnumList(new UiDataEnums(&item));
    item.setEnums(values, labels, names);
}

} // namespace uiutils
