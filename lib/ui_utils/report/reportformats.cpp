#include "report/reportformats_p.h"

#include "local/uidata.h"
#include "report/reporttexts_p.h"

namespace uiutils {

namespace {

/// In the order of their values.
FormatInfos applicableFormats(const UiData& item)
{
    const UiDataEnums* choices = item.getUiEnumList();
    const QList<UiEnumType*> choiceList = choices ? choices->getEnumList() : QList<UiEnumType*>();
    FormatInfos formats;
    for (const FormatInfo& candidate : allReportFormats()) {
        for (const UiEnumType* choice : choiceList) {
            if (!candidate.suffix.isEmpty() && choice->getValue() == candidate.value && choice->isApplicable())
                formats.append(&candidate);
        }
    }
    return formats;
}

} // namespace

const QList<FormatInfo>& allReportFormats()
{
    using namespace NSReport;
    static const QList<FormatInfo> formats {
            {REPORT_FORMAT_PDF, QT_TRANSLATE_NOOP("Report", "PDF"), "REPORT_FORMAT_PDF", pdfSuffix, true},
            {REPORT_FORMAT_XML, QT_TRANSLATE_NOOP("Report", "XML"), "REPORT_FORMAT_XML", xmlSuffix, true},
            {REPORT_FORMAT_HTML, QT_TRANSLATE_NOOP("Report", "HTML"), "REPORT_FORMAT_HTML", htmlSuffix, false},
            {REPORT_FORMAT_TEXT, QT_TRANSLATE_NOOP("Report", "TEXT"), "REPORT_FORMAT_TEXT", textSuffix, false},
            {REPORT_FORMAT_JSON, QT_TRANSLATE_NOOP("Report", "JSON"), "REPORT_FORMAT_JSON", jsonSuffix, false},
            {REPORT_FORMAT_ALL, QT_TRANSLATE_NOOP("Report", "ALL"), "REPORT_FORMAT_ALL", QLatin1String(), false},
    };
    return formats;
}

const FormatInfo* formatInfo(int value)
{
    for (const FormatInfo& format : allReportFormats()) {
        if (format.value == value)
            return &format;
    }
    return nullptr;
}

int formatNumber(const UiData* item)
{
    bool isNumber = false;
    const int number = item ? item->getValue().toInt(&isNumber) : -1;
    return isNumber ? number : -1;
}

FormatChoice formatChoice(const UiData* item)
{
    FormatChoice choice;
    if (!item)
        return choice;
    choice.given = item->getValue().toString();
    const FormatInfo* format = formatInfo(formatNumber(item));
    choice.isFormat = format;
    choice.isAll = format && format->value == NSReport::REPORT_FORMAT_ALL;
    if (choice.isAll)
        choice.formats = applicableFormats(*item);
    else if (format)
        choice.formats = {format};
    return choice;
}

void addFormatChoices(UiData& item)
{
    QList<int> values;
    QStringList labels;
    QStringList names;
    for (const FormatInfo& format : allReportFormats()) {
        values.append(format.value);
        labels.append(ReportTexts::tr(format.label));
        names.append(QLatin1String(format.name));
    }
    item.setUiEnumList(new UiDataEnums(&item));
    item.setEnums(values, labels, names);
}

} // namespace uiutils
