#pragma once

#include "report/nsreport.h"

#include <QLatin1String>
#include <QList>
#include <QString>

class UiData;

/// The formats of a report: one table that answers every question about them.
namespace uiutils {

inline const QLatin1String pdfSuffix(".pdf");
inline const QLatin1String xmlSuffix(".xml");
inline const QLatin1String htmlSuffix(".html");
inline const QLatin1String textSuffix(".txt");
inline const QLatin1String jsonSuffix(".json");
inline const QLatin1String gzipSuffix(".gz");

struct FormatInfo
{
    NSReport::ReportFormat value;
    /// In English.
    const char* label;
    const char* name;
    /// Empty for ALL, which is no file's format.
    QLatin1String suffix;
    /// Whether every controller offers it.
    bool isAlwaysOffered;
};

/// In the order of their values, in which ALL writes them.
const QList<FormatInfo>& allReportFormats();

/// Null if the value is not a format.
const FormatInfo* formatInfo(int value);

using FormatInfos = QList<const FormatInfo*>;

/// What the setting of the format says.
struct FormatChoice
{
    /// The value as a text.
    QString given;
    /// Whether that is a format, ALL included.
    bool isFormat = false;
    bool isAll = false;
    /// What is written: the format itself; for ALL, those that the setting says are applicable; none for anything else.
    FormatInfos formats;
};

/// The value as a number; -1 without an item, and if the value is not a number.
int formatNumber(const UiData* item);

FormatChoice formatChoice(const UiData* item);

/// Adds the formats to the choices of an item.
void addFormatChoices(UiData& item);

} // namespace uiutils
