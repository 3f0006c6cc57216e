#pragma once

#include "instrument/labelledtext_p.h"
#include "writers/text/textreport.h"

#include <QCoreApplication>
#include <QDate>
#include <QString>

namespace uiutils {

class NodeReader;

/// What every layout of a report for people shows beside the document, in the same words.

/// Labels and values under a title; no rows if there is nothing to show.
struct InformationTable
{
    QString title;
    /// What stands above the values.
    QString valueLabel;
    instrument::LabelledTexts rows;
};

InformationTable jobTable();
/// Fields that nobody filled in are empty.
InformationTable customerTable();
InformationTable technicianTable();
InformationTable softwareTable();
/// The settings of the module that the section names, read from its own service or the report's.
InformationTable configurationTable(const NodeReader& section, const NodeReader& report);

/// The overall result of the test as text; empty if it is not known.
QString overallText(ReportStatus status);

/// "Sat Nov 21 2026".
QString dateText(const QDate& date);

/// The words of reports for people, under one context for translators.
struct ReportWords
{
    Q_DECLARE_TR_FUNCTIONS(TemplateToHtmlWriter)
};

} // namespace uiutils
