#pragma once

#include "core/uiutils_export.h"

#include <kiv/kivitemsnapshot.h>

#include <QJsonObject>
#include <QString>
#include <QXmlStreamWriter>

class ReportTemplate;

namespace uiutils {
class NodeReader;
class TableReader;
} // namespace uiutils

/// Turns a report document into XML for machines: elements are named after the document's own tags, and the unit's
/// technician, customer, hardware and software have blocks of their own. docs/xml-report.md describes the mapping.
///
/// The text is well-formed, whatever the document contains. No step fails: what is missing counts as empty.
class UIUTILS_EXPORT TemplateToXmlWriter
{
public:
    /// Writes the document as it is now. `jobManagerMode` leaves out versions and customer; `includeCustomerInfo`
    /// includes the customer block; without `generate` the root element stays open and empty.
    TemplateToXmlWriter(const ReportTemplate& document, bool jobManagerMode, bool includeCustomerInfo, bool generate);
    virtual ~TemplateToXmlWriter();
    Q_DISABLE_COPY_MOVE(TemplateToXmlWriter)

    /// The text, with the technician and customer blocks as first children of the root. A second call returns the
    /// same text.
    QString getXml();

    // The parts of the text, for callers that made the writer without `generate` and choose what it writes.

    /// Writes the sections below a node with their contents.
    void sectionsToXml(QJsonObject& node);
    /// Writes the tables directly in a node.
    void tablesToXml(QJsonObject& node);
    /// Writes the technician block, if it has any contents.
    void writeTechInfo();
    /// Writes the customer block, if it has any contents.
    void writeCustomerInfo();
    /// Writes the blocks of hardware and software, if they have any contents.
    void writeVersions();
    /// Inserts the technician and customer blocks after the root's start tag, once.
    void insertCustomFields();

private:
    void sectionToXml(QJsonObject& section);
    void logEntriesToXml(const uiutils::NodeReader& section);
    void configurationToXml(const uiutils::NodeReader& section);
    void rowsToXml(const uiutils::TableReader& table);
    void rowToXml(const QJsonObject& row);
    void cellToXml(const QJsonObject& cell);
    QString customFields();

    void startElement(const QString& tag, const QString& fallback);
    void writeAttributes(const QJsonObject& node);

    QString m_output;
    QXmlStreamWriter m_xml;
    // What the blocks are written to.
    QXmlStreamWriter* m_blocks = &m_xml;
    // Open elements where tables are written.
    int m_level = 1;
    QJsonObject m_document;
    bool m_jobManagerMode;
    bool m_includeCustomerInfo;
    bool m_hasCustomFields = false;
    KIVItemSnapshot m_snapshot;
};
