#pragma once

#include "report/nsreport.h"

#include <QLatin1String>
#include <QList>
#include <QString>

class Report;
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
    /// Empty for ALL, and so is the writer.
    QLatin1String suffix;
    bool (Report::*writer)(const QString& path, bool overwrite);
    /// Whether every controller offers it.
    bool isAlwaysOffered;
};

/// In the order of their values, which is the one in which ALL writes them.
const QList<ReportFormat>& allReportFormats();

/// Null for a value that is no format.
const ReportFormat* reportFormat(int value);

using ReportFormats = QList<const ReportFormat*>;

/// What is written for the value `format`: itself, or for ALL those that `item` says are applicable; none for any other
/// value.
ReportFormats formatsToWrite(int format, const UiData* item);

/// Fills an item with the choices.
void addFormatChoices(UiData& item);

} // namespace uiutils
