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

/// Turns a report document into XML for machines: elements are named by the document's own tags, and the unit's
/// technician, customer, hardware and software stand in blocks of their own. docs/xml-report.md describes the mapping.
///
/// Whatever the document holds, the text is well-formed. No step fails: what is missing reads as empty.
class UIUTILS_EXPORT TemplateToXmlWriter
{
public:
    /// Writes the document as it is now. `jobManagerMode` leaves out versions and customer; `includeCustomerInfo`
    /// lets the customer block in; without `generate` the root element stays open and empty.
    TemplateToXmlWriter(const ReportTemplate& document, bool jobManagerMode, bool includeCustomerInfo, bool generate);
    virtual ~TemplateToXmlWriter();
    Q_DISABLE_COPY_MOVE(TemplateToXmlWriter)

    /// The text, with the technician and customer blocks as first children of the root. A second call returns the
    /// same text.
    QString getXml();

private:
    void sectionsToXml(const QJsonObject& node);
    void sectionToXml(const QJsonObject& section);
    void logEntriesToXml(const uiutils::NodeReader& section);
    void configurationToXml(const uiutils::NodeReader& section);
    void tablesToXml(const QJsonObject& node, int level);
    void rowsToXml(const uiutils::TableReader& table, int level);
    void rowToXml(const QJsonObject& row, int level);
    void cellToXml(const QJsonObject& cell);

    void writeTechInfo(QXmlStreamWriter& xml) const;
    void writeCustomerInfo(QXmlStreamWriter& xml) const;
    void insertCustomFields();
    void writeVersions();

    void startElement(const QString& tag, const QString& fallback);
    void writeAttributes(const QJsonObject& node);

    QString m_output;
    QXmlStreamWriter m_xml;
    QJsonObject m_document;
    bool m_jobManagerMode;
    bool m_includeCustomerInfo;
    bool m_hasCustomFields = false;
    KIVItemSnapshot m_snapshot;
};
