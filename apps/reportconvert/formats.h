#pragma once

#include <QByteArray>
#include <QLatin1String>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

class ReportTemplate;
class TemplateToPdfWriter;

namespace uiutils::convert {

/// The options for the appearance of pages and texts.
struct PageSettings
{
    /// Null: the document's own title.
    QString title;
    bool hasLogo = true;
    /// A picture that replaces the instrument's logo; empty for none.
    QString logoFile;
    /// "portrait" or "landscape"; empty: as the document says.
    QString orientation;
    /// Whether PDF files have the form for archives, whatever the document says.
    bool isArchive = false;
    /// Whether HTML pages are made for screens of any size, paper and reading aloud.
    bool isModern = false;
    /// Empty: the unit whose services are loaded.
    QString unitId;
};

/// How a format that has a file for each table is written.
enum class Packing {
    /// One table as it is, several in one packed file.
    AsNeeded,
    /// One table as it is; several are an error.
    Single,
    /// Every table as a file in a folder.
    Files,
    Packed,
};

/// The options for formats of tables.
struct TableSettings
{
    Packing packing = Packing::AsNeeded;
    bool hasDecimalComma = false;
    bool hasByteOrderMark = true;
};

/// The context of the conversion of one document into one format.
struct Generation
{
    const PageSettings& page;
    const TableSettings& tables;
    Packing packing;
    /// For temporary files.
    QString scratchFolder;
    /// Called with the finished pages and the expected number; false stops the conversion.
    std::function<bool(int page, int pageCount)> mayContinue;
    /// Called with the files of Packing::Files, which then are the result.
    std::function<void(const QString& name, const QByteArray& contents)> writePart;
    /// Why there is no result; empty when it was stopped.
    QString error;
    /// Whether the result is packed.
    bool isPacked = false;
};

/// A format that documents can be converted to. A new row of the table in formats.cpp is a new format.
struct Format
{
    enum Trait {
        /// PageSettings::title has an effect.
        HasTitle = 1,
        /// It shows pictures: the logo, status icons.
        IsPage = 2,
        /// It is divided into sheets of paper.
        IsPaper = 4,
        /// It shows status icons only if their files can be read.
        NeedsIconFiles = 8,
        /// PageSettings::isModern has an effect.
        HasStyles = 16,
        /// It has a file for each table: TableSettings have an effect.
        HasTables = 32
    };

    QLatin1String name;
    /// The suffix of the file's name, without the dot.
    QLatin1String suffix;
    const char* description;
    int traits;
    /// The contents of the file, text in UTF-8; null when it failed or was stopped.
    QByteArray (*generate)(const ReportTemplate& report, Generation& generation);
    /// The suffix of several tables in one file.
    QLatin1String packedSuffix = QLatin1String();

    bool has(Trait trait) const { return (traits & trait) != 0; }
};

/// Hands the settings of pages to a writer.
void setUpPages(TemplateToPdfWriter& writer, const ReportTemplate& report, const Generation& generation);

/// Why the picture cannot be a logo; empty if it can.
QString logoProblem(const QString& file);

/// Every format, in the order of writing.
const QVector<const Format*>& allFormats();

/// The format with that name or suffix, or null.
const Format* formatByName(const QString& name);
const Format* formatBySuffix(const QString& suffix);

/// "html, pdf, xml, json, text, csv".
QString formatNames();

} // namespace uiutils::convert
