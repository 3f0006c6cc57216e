#pragma once

#include "writers/pages/reportfield.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QVariant>
#include <QVector>

#include <functional>

namespace uiutils {

/// A picture, and what those hear who do not see it.
struct PlotOnPage
{
    QByteArray png;
    QString words;
};

/// What a modern page is made of.
struct ModernPageSource
{
    QJsonObject document;
    QString title;
    /// The lines of the table under the title.
    QVector<ReportField> facts;
    /// The overall status, for programs that read the page.
    QLatin1String statusWord;
    /// The value of a switch of TemplateToHtmlWriter.
    std::function<QVariant(const QString& name)> attribute;
    /// A service's plot, and how many of its picture's pixels are shown per pixel of the page.
    std::function<PlotOnPage(const QString& service, quint64 tableNumber)> plot;
    int plotPixels = 1;
};

/// The report as one HTML file that needs no other and runs no program: for screens of any size, for paper, and for
/// programs that read aloud. Rows, tables and sections come in the order of their numbers. The page is well-formed XML
/// too. Nothing fails: what is missing reads as empty.
QString modernPage(const ModernPageSource& source);

} // namespace uiutils
