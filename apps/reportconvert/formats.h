#pragma once

#include <QByteArray>
#include <QLatin1String>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

class ReportTemplate;

namespace uiutils::convert {

/// What the command line says about the looks of what people read.
struct PageSettings
{
    /// Null: the document's own title.
    QString title;
    bool hasLogo = true;
    /// A picture in place of the instrument's logo; empty for none.
    QString logoFile;
    /// "portrait" or "landscape"; empty: as the document says.
    QString orientation;
    /// Empty: that of the unit whose services are loaded.
    QString unitId;
};

/// What surrounds the conversion of one document into one format.
struct Generation
{
    const PageSettings& page;
    /// For what is kept only meanwhile.
    QString scratchFolder;
    /// Told of the pages that are done, and of how many there will be; false stops the conversion.
    std::function<bool(int page, int pageCount)> goesOn;
    /// Why nothing was made; empty when it was stopped.
    QString error;
};

/// A format that documents are converted to. One more row of the table in formats.cpp makes one more format.
struct Format
{
    QLatin1String name;
    /// Of the file's name, without the dot.
    QLatin1String suffix;
    const char* description;
    /// Whether PageSettings::title makes a difference.
    bool hasTitle;
    /// Whether it shows pictures: the logo, status icons.
    bool isPage;
    /// Whether it is parted into sheets of paper.
    bool isPaper;
    /// The contents of the file, text in UTF-8; null when it failed or was stopped.
    QByteArray (*generate)(const ReportTemplate& report, Generation& generation);
};

/// Why the picture cannot be a logo, or nothing.
QString logoProblem(const QString& file);

/// Every format, in the order in which they are written.
const QVector<const Format*>& allFormats();

/// The format of that name or suffix, or null.
const Format* formatByName(const QString& name);
const Format* formatBySuffix(const QString& suffix);

/// "html, pdf, xml, json, text".
QString formatNames();

} // namespace uiutils::convert
