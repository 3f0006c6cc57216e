#include "report/reportformats_p.h"

#include "local/uidata.h"
#include "report/ownlabel_p.h"
#include "report/reporttexts_p.h"

#include <algorithm>

namespace uiutils {

namespace {

QList<UiEnumType*> choicesOf(const UiData& item)
{
    const UiDataEnums* choices = item.getUiEnumList();
    return choices ? choices->getEnumList() : QList<UiEnumType*>();
}

/// In the order of the table.
FormatInfos applicableFormats(const UiData& item)
{
    const QList<UiEnumType*> choices = choicesOf(item);
    FormatInfos formats;
    for (const FormatInfo& candidate : allReportFormats()) {
        for (const UiEnumType* choice : choices) {
            if (!candidate.suffix.isEmpty() && choice->getValue() == candidate.value && choice->isApplicable())
                formats.append(&candidate);
        }
    }
    return formats;
}

/// Another controller of the process may have added the format.
bool hasFormat(const UiData& item, const FormatInfo& format)
{
    const QList<UiEnumType*> choices = choicesOf(item);
    return format.value < NSReport::csvFormat
            || std::any_of(choices.cbegin(), choices.cend(),
                    [&](const UiEnumType* choice) { return choice->getValue() == format.value; });
}

bool isSuffix(const QString& text)
{
    return text.size() > 1 && text.startsWith(QLatin1Char('.')) && !text.endsWith(gzipSuffix)
            && !text.contains(QLatin1Char('/')) && !text.contains(QChar(QChar::Null));
}

/// A format of the library's own.
struct KnownFormat
{
    NSReport::ReportFormat value;
    /// In English.
    const char* label;
    const char* name;
    QLatin1String suffix;
    bool isAlwaysOffered;
};

const QVector<KnownFormat>& knownFormats()
{
    using namespace NSReport;
    static const QVector<KnownFormat> formats {
            {REPORT_FORMAT_PDF, QT_TRANSLATE_NOOP("Report", "PDF"), "REPORT_FORMAT_PDF", pdfSuffix, true},
            {REPORT_FORMAT_XML, QT_TRANSLATE_NOOP("Report", "XML"), "REPORT_FORMAT_XML", xmlSuffix, true},
            {REPORT_FORMAT_HTML, QT_TRANSLATE_NOOP("Report", "HTML"), "REPORT_FORMAT_HTML", htmlSuffix, false},
            {REPORT_FORMAT_TEXT, QT_TRANSLATE_NOOP("Report", "TEXT"), "REPORT_FORMAT_TEXT", textSuffix, false},
            {REPORT_FORMAT_JSON, QT_TRANSLATE_NOOP("Report", "JSON"), "REPORT_FORMAT_JSON", jsonSuffix, false},
            {REPORT_FORMAT_ALL, QT_TRANSLATE_NOOP("Report", "ALL"), "REPORT_FORMAT_ALL", QLatin1String(), false},
    };
    return formats;
}

std::deque<FormatInfo> tableOfKnownFormats()
{
    std::deque<FormatInfo> table;
    for (const KnownFormat& format : knownFormats())
        table.push_back({format.value, QLatin1String(format.label), QLatin1String(format.name), format.suffix,
                format.isAlwaysOffered});
    return table;
}

std::deque<FormatInfo>& formatTable()
{
    static std::deque<FormatInfo> formats = tableOfKnownFormats();
    return formats;
}

} // namespace

const std::deque<FormatInfo>& allReportFormats()
{
    return formatTable();
}

const FormatInfo* addReportFormat(int value, const QString& label, const QString& suffix)
{
    if (value < NSReport::csvFormat || !isSuffix(suffix))
        return nullptr;
    for (const FormatInfo& format : formatTable()) {
        if (format.value == value || format.suffix == suffix)
            return format.value == value && format.suffix == suffix && format.label == label ? &format : nullptr;
    }
    formatTable().push_back({value, label, label, suffix, true});
    return &formatTable().back();
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
    if (format && !hasFormat(*item, *format))
        format = nullptr;
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
    for (const KnownFormat& format : knownFormats()) {
        values.append(format.value);
        labels.append(ReportTexts::tr(format.label));
        names.append(QLatin1String(format.name));
    }
    item.setUiEnumList(new UiDataEnums(&item));
    item.setEnums(values, labels, names);
    const QList<UiEnumType*> choices = choicesOf(item);
    for (int i = 0; i < choices.size(); ++i)
        keepLabelled(choices.at(i), [&format = knownFormats().at(i)] { return ReportTexts::tr(format.label); });
}

void addFormatChoice(UiData& item, const FormatInfo& format)
{
    item.setEnums({format.value}, {format.label}, {format.name});
}

} // namespace uiutils
