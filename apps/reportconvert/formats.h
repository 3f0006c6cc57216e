#pragma once

#include <QByteArray>
#include <QLatin1String>
#include <QString>
#include <QStringList>
#include <QVector>

class ReportTemplate;

namespace uiutils::convert {

/// What the command line says about the looks of what people read.
struct PageSettings
{
    /// Null: the document's own title.
    QString title;
    bool hasLogo = true;
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
    /// The text in UTF-8.
    QByteArray (*generate)(const ReportTemplate& report, const PageSettings& settings);
};

/// Every format, in the order in which they are written.
const QVector<const Format*>& allFormats();

/// The format of that name or suffix, or null.
const Format* formatByName(const QString& name);
const Format* formatBySuffix(const QString& suffix);

/// "html, xml, json, text".
QString formatNames();

} // namespace uiutils::convert
