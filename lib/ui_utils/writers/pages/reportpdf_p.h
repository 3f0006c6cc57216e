#pragma once

#include "base/paths_p.h"
#include "writers/pages/pageprinter_p.h"
#include "writers/pages/reportpdf.h"

#include <QCoreApplication>

/// What the pages are to show.
class uiutils::ReportPDFPrivate
{
public:
    QList<ReportItem*> items;
    ReportPDF::Orientation orientation = ReportPDF::Portrait;
    ReportPDF::TableOrientation tableOrientation = ReportPDF::SameOrientation;
    QString documentTitle = QCoreApplication::translate("ReportPDF", "Solvant Report");
    QString title;
    QString author;
    QString subject;
    QString producer;
    QString logo = paths::logo;
    QString unitId;
    QString timestamp;
    QVector<ReportPDF::Field> fields;
    ReportPDF::Structure structure = ReportPDF::AutomaticStructure;
    bool isArchive = false;
    bool isCancelled = false;

    PageSettings settings() const;

private:
    bool isTagged() const;
};
