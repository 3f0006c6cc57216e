#pragma once

#include "core/uiutils_export.h"
#include "writers/pages/reportfield.h"
#include "writers/pages/reportitem.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QVariant>
#include <QVector>

#include <memory>

class HtmlStreamWriter;
class ReportTemplate;

namespace uiutils {
class NodeReader;
class PagePlots;
class TableReader;
} // namespace uiutils

/// Turns a report document into one stand-alone HTML page, and in the same pass collects its tables as report items
/// for the page renderer.
///
/// The writer never fails: what is missing reads as empty. Set the attributes first, then call getHtml(). The parts of
/// the pass are public for those who write pages of their own.
class UIUTILS_EXPORT TemplateToHtmlWriter
{
public:
    /// Keeps the document as it is now. The pass appends its items to `items`, after it has deleted those of an
    /// earlier pass, unless they are being printed; null collects none.
    explicit TemplateToHtmlWriter(
            const ReportTemplate& document, QList<ReportItem*>* items = &uiutils::sharedReportItems());
    virtual ~TemplateToHtmlWriter();
    Q_DISABLE_COPY_MOVE(TemplateToHtmlWriter)

    /// Sets a switch of style or content, in place of the writer's default; docs/html-report.md lists them.
    void setAttribute(const QString& name, const QVariant& value);
    /// A switch's value; invalid when it is neither set nor has a default.
    QVariant attribute(const QString& name) const;

    /// What makes a page read and print as it should: its language, the direction of its lines, and that its colours
    /// are printed. For setBodyAttributes(); a modern page has them without.
    QVariantMap defaultBodyAttributes() const;
    /// Attributes of the page's body element; a modern page has none.
    void setBodyAttributes(const QVariantMap& attributes) { m_bodyAttributes = attributes; }

    /// The report's title: the attribute "title", or the document's own where that is not set.
    QString title() const;
    /// Date and time of now as the page shows them.
    static QString timestamp();
    /// What a title block says about the test: its time, its overall status if one is set, and the job if the page
    /// includes it.
    QVector<ReportField> titleFields() const;

    /// Makes the pass for its report items only. The text of the page is discarded, so that getHtml() returns none.
    void collectItems();

    /// The page. The first call writes it; later calls return the same text.
    QString getHtml();

    /// Writes the sections below a node with what they hold.
    void sectionsToHtml(QJsonObject& node);
    /// Writes the tables directly in a node.
    void tablesToHtml(QJsonObject& node);

private:
    struct OverallStatus;

    bool isSet(const char* name) const;
    OverallStatus overallStatus() const;

    bool isModern() const;
    void writePage();
    void writeModernPage();
    void writeBodyStart();
    void writeTestInformation();
    void writeJobTable();
    void writeCustomerTable();
    void writeTechnicianTable();
    void writeSystemInformation();
    void writeSoftwareTable();
    void writeHardwareTable();

    void sectionToHtml(QJsonObject& section);
    void tableToHtml(const uiutils::TableReader& table);
    void rowsToHtml(const uiutils::TableReader& table);
    void plotToHtml(const uiutils::TableReader& table, quint64 tableNumber);
    uiutils::PagePlots& plots();
    void writeConfigurationValues(const uiutils::NodeReader& section);

    QJsonObject m_document;
    QVariantMap m_bodyAttributes;
    QList<ReportItem*>* m_items;
    std::unique_ptr<HtmlStreamWriter> m_html;
    std::unique_ptr<uiutils::PagePlots> m_plots;
    int m_plotPixels = 1;
    int m_depth = 0;
    bool m_isWritten = false;
};
