#pragma once

#include "core/uiutils_export.h"
#include "writers/html/templatetohtmlwriter.h"
#include "writers/pages/reportitem.h"
#include "writers/pages/reportpdf.h"

#include <QString>
#include <QVariant>

class ReportTemplate;

/// Turns a report document into a PDF file: the HTML writer's pass collects the items, and ReportPDF prints them.
class UIUTILS_EXPORT TemplateToPdfWriter
{
public:
    /// Keeps the document as it is now. The pass appends its items to `items`, where they stay until the next one
    /// deletes them; other items in the list are printed too and are not owned.
    explicit TemplateToPdfWriter(
            const ReportTemplate& document, QList<ReportItem*>* items = &uiutils::sharedReportItems());
    ~TemplateToPdfWriter();
    Q_DISABLE_COPY_MOVE(TemplateToPdfWriter)

    /// Sets a switch of content: those of the HTML writer; "logo", an instrument path; "orientation", "portrait" or
    /// anything else for landscape; "unitId", in place of the unit's own; "author", in place of the
    /// technician's name; "subject", in place of the document's; "producer"; "pdf_tagged",
    /// "pdf_archive" and "pdf_table_orientation", in place of the document's fields of these names:
    /// ReportPDF::setStructure(), setArchive() and setTableOrientation(), which is automatic for "auto".
    void setAttribute(const QString& name, const QVariant& value) { m_html.setAttribute(name, value); }

    /// Receives the progress of toPdf() and write(), and can cancel them.
    ReportPDF& pages() { return m_pages; }
    /// Does the pass without printing: pages() has then everything that toPdf() would print, for a ReportPainter. Does
    /// nothing while any ReportPDF is printing, whose items these may be.
    void collectItems();

    /// The file's bytes; see ReportPDF::toPdf() for when there are none.
    QByteArray toPdf(QString* error = nullptr);
    /// Prints the file; see ReportPDF::print() for what it returns.
    [[nodiscard]] bool write(const QString& path, QString* error = nullptr);

private:
    void setUpPages();

    TemplateToHtmlWriter m_html;
    QList<ReportItem*>* m_items;
    QString m_subject;
    QVariant m_isTagged;
    QVariant m_isArchive;
    QVariant m_tableOrientation;
    ReportPDF m_pages;
};
