#pragma once

#include "report/nsreport.h"

#include <QLatin1String>
#include <QList>
#include <QString>

class UiData;

/// The formats of a report: one table that every question about them is answered from.
namespace uiutils {

inline const QLatin1String pdfSuffix(".pdf");
inline const QLatin1String xmlSuffix(".xml");
inline const QLatin1String htmlSuffix(".html");
inline const QLatin1String textSuffix(".txt");
inline const QLatin1String jsonSuffix(".json");
inline const QLatin1String gzipSuffix(".gz");

struct ReportFormat
{
    NSReport::ReportFormat value;
    /// In English.
    const char* label;
    const char* name;
    /// Empty for ALL, which no file is in.
    QLatin1String suffix;
    /// Whether every controller offers it.
    bool isAlwaysOffered;
};

/// In the order of their values, which is the one in which ALL writes them.
const QList<ReportFormat>& allReportFormats();

/// Null for a value that is no format.
const ReportFormat* reportFormat(int value);

using ReportFormats = QList<const ReportFormat*>;

/// What the setting of the format says.
struct FormatChoice
{
    /// As a text.
    QString given;
    /// Whether that is a format, ALL included.
    bool isFormat = false;
    bool isAll = false;
    /// What is written: the format itself, or for ALL those that the setting says are applicable; none for anything
    /// else.
    ReportFormats formats;
};

/// The value as a number; -1 without an item and for what is none.
int formatNumber(const UiData* item);

FormatChoice formatChoice(const UiData* item);

/// Fills an item with the choices.
void addFormatChoices(UiData& item);

} // namespace uiutils
