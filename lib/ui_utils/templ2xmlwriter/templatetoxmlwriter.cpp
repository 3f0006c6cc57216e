#include "templ2xmlwriter/templatetoxmlwriter.h"

#include "base/directmarkup_p.h"
#include "base/xmlname_p.h"
#include "base/xmltext_p.h"
#include "document/documentreader_p.h"
#include "document/reporttemplate.h"
#include "instrument/people_p.h"
#include "instrument/unit_p.h"

#include <QDebug>
#include <QScopedValueRollback>
#include <QSet>

namespace instrument = uiutils::instrument;
namespace keys = uiutils::keys;
using uiutils::beginLine;
using uiutils::markupText;
using uiutils::NodeReader;
using uiutils::TableReader;
using uiutils::xmlName;

namespace {

const QString removedElement = QStringLiteral("removeSection");
const QString namelessName = QStringLiteral("_");

/// The element name of an item: its label in lower case, words joined by "_".
QString labelName(const QString& label)
{
    return label.isEmpty() ? namelessName : xmlName(label.toLower().replace(QLatin1Char(' '), QLatin1Char('_')));
}

QString elementName(const QString& tag, const QString& fallback)
{
    return tag.isEmpty() ? fallback : xmlName(tag);
}

void writeFields(QXmlStreamWriter& xml, const instrument::LabelledTexts& fields)
{
    for (const instrument::LabelledText& field : fields)
        xml.writeTextElement(labelName(field.label), markupText(field.text));
}

void logFields(const char* name, const QStringList& fields)
{
    for (const QString& field : fields)
        qDebug().noquote() << QString(QLatin1String(name) + QLatin1String(" value setting ") + field);
}

} // namespace

TemplateToXmlWriter::TemplateToXmlWriter(
        const ReportTemplate& document, bool jobManagerMode, bool includeCustomerInfo, bool generate)
    : m_xml(&m_output)
    , m_document(document.object())
    , m_jobManagerMode(jobManagerMode)
    , m_includeCustomerInfo(includeCustomerInfo)
    , m_snapshot(instrument::settingsOf(NodeReader(m_document).text(keys::service)))
{
    m_snapshot.labelSort();
    m_xml.setAutoFormatting(true);
    m_xml.writeStartDocument();
    startElement(NodeReader(m_document).tag(), keys::report);
    if (!generate)
        return;

    tablesToXml(m_document);
    sectionsToXml(m_document);
    if (!m_jobManagerMode)
        writeVersions();
    m_xml.writeEndDocument();
}

TemplateToXmlWriter::~TemplateToXmlWriter() = default;

QString TemplateToXmlWriter::getXml()
{
    insertCustomFields();
    return m_output;
}

void TemplateToXmlWriter::sectionsToXml(QJsonObject& node)
{
    NodeReader(node).forEachSection(NodeReader::ByKey, [this](QJsonObject section) {
        if (NodeReader(section).tag().isEmpty())
            qWarning().noquote() << "Section missing tag:" << NodeReader(section).title();
        else
            sectionToXml(section);
        // Not before, because nested sections are siblings of their parent.
        sectionsToXml(section);
    });
}

void TemplateToXmlWriter::sectionToXml(QJsonObject& object)
{
    const NodeReader section(object);
    const QString title = section.title();
    if (!title.isEmpty())
        m_xml.writeComment(uiutils::xmlComment(title));
    startElement(section.tag(), keys::section);
    writeAttributes(object);
    logEntriesToXml(section);
    configurationToXml(section);
    ++m_level;
    tablesToXml(object);
    --m_level;
    m_xml.writeEndElement();
}

void TemplateToXmlWriter::logEntriesToXml(const NodeReader& section)
{
    const QVector<NodeReader::LogEntry> entries = section.logEntries();
    for (const NodeReader::LogEntry& entry : entries) {
        m_xml.writeComment(uiutils::xmlComment(entry.key));
        m_xml.writeTextElement(QStringLiteral("log"), markupText(entry.text));
    }
}

void TemplateToXmlWriter::configurationToXml(const NodeReader& section)
{
    const QString module = section.text(keys::configModule);
    if (module.isEmpty())
        return;
    const QString service = section.text(keys::service);
    KIVItemSnapshot settings = m_snapshot;
    if (!service.isEmpty()) {
        settings = instrument::settingsOf(service);
        settings.labelSort();
    }
    const instrument::LabelledTexts values = instrument::configurationValues(settings, module);
    if (values.isEmpty())
        return;
    m_xml.writeStartElement(QStringLiteral("configuration"));
    m_xml.writeAttribute(QStringLiteral("module"), markupText(module));
    writeFields(m_xml, values);
    m_xml.writeEndElement();
}

void TemplateToXmlWriter::tablesToXml(QJsonObject& node)
{
    NodeReader(node).forEachTable(NodeReader::ByKey, [this](const QString&, const QJsonObject& object) {
        const TableReader table(object);
        startElement(table.tag(), keys::table);
        writeAttributes(object);
        rowsToXml(table);
        m_xml.writeEndElement();
    });
}

void TemplateToXmlWriter::rowsToXml(const TableReader& table)
{
    // As much as rows of one short cell take; memory that is not written to costs nothing.
    constexpr int charactersOfARow = 180;
    uiutils::makeRoom(m_output, qint64(table.extent().rows) * charactersOfARow);
    m_xml.setAutoFormatting(false);
    table.forEachRow(NodeReader::ByKey, [this](const QString&, const QJsonObject& row) { rowToXml(row); });
    m_xml.setAutoFormatting(true);
}

void TemplateToXmlWriter::rowToXml(const QJsonObject& row)
{
    const int level = m_level + 1;
    static const QString element = QStringLiteral("row");
    static const QString labelAttribute = keys::label;
    beginLine(m_xml, m_output, level);
    m_xml.writeStartElement(element);
    uiutils::appendAttribute(m_output, labelAttribute, uiutils::shownTextOf(row.value(keys::label)));
    bool hasCells = false;
    uiutils::forEachCell(row, [&](const QJsonObject& cell) {
        hasCells = true;
        beginLine(m_xml, m_output, level + 1);
        cellToXml(cell);
    });
    if (hasCells)
        beginLine(m_xml, m_output, level);
    m_xml.writeEndElement();
}

/// Without the stream writer, which would copy each word several times.
void TemplateToXmlWriter::cellToXml(const QJsonObject& cell)
{
    static const QString nameless = QStringLiteral("cell");
    const QString name = elementName(uiutils::textOf(cell.value(keys::tag)), nameless);
    m_output += QLatin1Char('<');
    m_output += name;
    writeAttributes(cell);
    m_output += QLatin1Char('>');
    uiutils::appendDirectText(m_output, uiutils::shownTextOf(cell.value(keys::label)));
    m_output += QLatin1String("</");
    m_output += name;
    m_output += QLatin1Char('>');
}

void TemplateToXmlWriter::writeTechInfo()
{
    const QStringList names = instrument::technicianFieldNames();
    qDebug() << "techInfoList size" << names.size();
    if (names.isEmpty()) {
        qDebug() << "techFieldsIncludedInReport setting empty.";
        return;
    }
    logFields("techInfoList", names);
    m_blocks->writeStartElement(QStringLiteral("TechnicianInformation"));
    writeFields(*m_blocks, instrument::userFields(names));
    m_blocks->writeEndElement();
}

void TemplateToXmlWriter::writeCustomerInfo()
{
    qDebug() << "writeCustomerInfo" << m_includeCustomerInfo;
    if (!m_includeCustomerInfo)
        return;
    const QStringList names = instrument::customerFieldNames();
    qDebug() << "customerInfoList size" << names.size();
    if (names.isEmpty()) {
        qDebug() << "customerFieldsIncludedInReport setting empty.";
        return;
    }
    logFields("customerInfoList", names);
    m_blocks->writeStartElement(QStringLiteral("CustomerInformation"));
    writeFields(*m_blocks, instrument::userFields(names));
    m_blocks->writeEndElement();
}

/// Both blocks, or nothing. They are written inside an element of their own, so that they are indented by one level,
/// and are then taken out of it. The line of its end tag remains as an empty one.
QString TemplateToXmlWriter::customFields()
{
    QString blocks;
    QXmlStreamWriter xml(&blocks);
    const QScopedValueRollback<QXmlStreamWriter*> redirected(m_blocks, &xml);
    xml.setAutoFormatting(true);
    xml.writeStartElement(removedElement);
    if (!m_jobManagerMode)
        writeCustomerInfo();
    writeTechInfo();
    xml.writeEndElement();

    const QString start = QLatin1Char('<') + removedElement + QLatin1String(">\n");
    const int begin = blocks.indexOf(start);
    if (begin < 0)
        return QString();
    blocks.remove(begin, start.size());
    blocks.truncate(blocks.lastIndexOf(QLatin1String("</") + removedElement));
    return blocks;
}

void TemplateToXmlWriter::insertCustomFields()
{
    const int declarationEnd = m_output.indexOf(QLatin1Char('>'));
    const int rootEnd = m_output.indexOf(QLatin1Char('>'), declarationEnd + 1);
    if (m_hasCustomFields || rootEnd < 0)
        return;
    m_hasCustomFields = true;
    const QString blocks = customFields();
    if (blocks.isEmpty())
        return;

    if (m_output.at(rootEnd - 1) == QLatin1Char('/')) {
        const QString endTag
                = QLatin1String("</") + elementName(NodeReader(m_document).tag(), keys::report) + QLatin1Char('>');
        m_output.replace(rootEnd - 1, 2, QLatin1String(">\n") + blocks + endTag);
    } else {
        m_output.insert(rootEnd + 2, blocks);
    }
}

void TemplateToXmlWriter::writeVersions()
{
    m_xml.writeStartElement(QStringLiteral("hardwareInfo"));
    const QVector<QStringList> assemblies = instrument::hardwareAssemblies();
    for (const QStringList& parts : assemblies) {
        m_xml.writeEmptyElement(QStringLiteral("assembly"));
        m_xml.writeAttribute(QStringLiteral("description"), markupText(parts.value(0)));
        m_xml.writeAttribute(QStringLiteral("assemblyID"), markupText(parts.value(1)));
        m_xml.writeAttribute(QStringLiteral("barcodeID"), markupText(parts.value(2)));
    }
    m_xml.writeEndElement();

    m_xml.writeStartElement(QStringLiteral("softwareInfo"));
    const instrument::LabelledTexts revisions = instrument::softwareRevisions();
    for (const instrument::LabelledText& revision : revisions) {
        m_xml.writeEmptyElement(QStringLiteral("software"));
        m_xml.writeAttribute(QStringLiteral("name"), markupText(revision.label));
        m_xml.writeAttribute(QStringLiteral("version"), markupText(revision.text));
    }
    m_xml.writeEndElement();
}

void TemplateToXmlWriter::startElement(const QString& tag, const QString& fallback)
{
    m_xml.writeStartElement(elementName(tag, fallback));
}

void TemplateToXmlWriter::writeAttributes(const QJsonObject& node)
{
    QVector<QPair<QString, QString>> mapped;
    NodeReader(node).forEachAttribute([&](const QString& name, const QString& value) {
        const QString xml = name.isEmpty() ? namelessName : xmlName(name);
        if (xml == name)
            uiutils::appendAttribute(m_output, name, value);
        else
            mapped.append({xml, value});
    });
    if (mapped.isEmpty())
        return;

    // Names in the document differ; only a mapped one can equal another.
    QSet<QString> written;
    NodeReader(node).forEachAttribute([&](const QString& name, const QString&) { written += name; });
    for (const auto& attribute : qAsConst(mapped)) {
        if (written.contains(attribute.first))
            continue;
        written += attribute.first;
        uiutils::appendAttribute(m_output, attribute.first, attribute.second);
    }
}
