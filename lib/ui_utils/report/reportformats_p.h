#pragma once

#include "report/nsreport.h"

#include <QLatin1String>
#include <QList>
#include <QString>

#include <deque>

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
    /// An NSReport::ReportFormat, NSReport::csvFormat, or at least NSReport::firstOwnFormat for a format that an
    /// application has added.
    int value;
    /// In English; of an application's format, as the application has given it.
    QString label;
    QString name;
    /// Empty for ALL, which is no file's format.
    QString suffix;
    /// Whether every controller that has the format offers it.
    bool isAlwaysOffered;
};

/// In the order of their values, in which ALL writes them; after these, the formats that the controllers of this
/// process have added. An entry keeps its place in memory.
const std::deque<FormatInfo>& allReportFormats();

/// The entry of a format that only some controllers have, CSV or one of the application's own, which is made if there
/// is none. Null if the value or the suffix is another format's, or cannot be one.
const FormatInfo* addReportFormat(int value, const QString& label, const QString& suffix);

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

/// Adds the library's formats to the choices of an item.
void addFormatChoices(UiData& item);

/// Adds one that addReportFormat() has returned.
void addFormatChoice(UiData& item, const FormatInfo& format);

} // namespace uiutils
