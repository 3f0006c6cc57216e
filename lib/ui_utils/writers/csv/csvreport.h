#pragma once

#include "core/uiutils_export.h"
#include "writers/text/textreport.h"

#include <QByteArray>
#include <QString>

#include <functional>

class ReportTemplate;

namespace uiutils {

/// How CSV files are written, and what they have besides the document.
struct CsvLayout
{
    /// Whether numbers have a decimal comma; fields are then separated by ";" and not by ",". Spreadsheets of countries
    /// that write numbers so expect both.
    bool hasDecimalComma = false;
    /// Whether files begin with the mark by which spreadsheets recognize UTF-8.
    bool hasByteOrderMark = true;
    /// What the files have besides the document's tables; the width has no effect.
    TextLayout content;
};

/// Gets the files of a report one by one: the name, with ".csv", and the contents.
using CsvVisitor = std::function<void(const QString& name, const QByteArray& contents)>;

/// The number of tables that the document shows, plots included.
UIUTILS_EXPORT int csvTableCount(const ReportTemplate& document);

/// The only table of the document as CSV, or the data of the report where there is no table. Null if there are several
/// tables. docs/csv-report.md describes the files.
UIUTILS_EXPORT QByteArray reportCsv(const ReportTemplate& document, const CsvLayout& layout = {});

/// Every table of the document as a CSV file, with the data of the report ("report.csv") and what the layout asks for,
/// in one ZIP archive.
UIUTILS_EXPORT QByteArray reportCsvZip(const ReportTemplate& document, const CsvLayout& layout = {});

/// The same files, one at a time. Names are unique in their report, whatever the case of their letters, and names of
/// files on every system.
UIUTILS_EXPORT void visitCsvFiles(const ReportTemplate& document, const CsvLayout& layout, const CsvVisitor& visit);

} // namespace uiutils
