#include "document/reporttemplate.h"

#include "base/paths.h"
#include "document/opennode_p.h"
#include "document/reportkeys_p.h"

using uiutils::OpenNode;
namespace keys = uiutils::keys;

namespace {

// Everything that walks JSON calls itself for each level, Qt's own classes too, and its parser stops at 1,024.
constexpr int deepestSection = 1000;

bool takesChildren(const OpenNode& node)
{
    const QString type = node.nodeType();
    return type == keys::section || type == keys::report;
}

QJsonObject sectionNode(const QString& tag, const QString& title)
{
    return {{keys::nodeType, keys::section}, {keys::tag, tag}, {keys::title, title}};
}

QJsonObject tableNode(const QString& tag, const QString& title)
{
    return {{keys::columnLabelFamily + QLatin1Char('0'), ReportTemplate::tr("Value")}, {keys::nodeType, keys::table},
            {keys::numColumns, 1}, {keys::tag, tag}, {keys::title, title}, {keys::useRowLabels, true}};
}

QString attributeKey(const QString& name)
{
    return keys::attributeFamily + name;
}

} // namespace

ReportTemplate::ReportTemplate(QObject* parent)
    : QObject(parent)
{
}

ReportTemplate::~ReportTemplate() = default;

void ReportTemplate::readFile(const QString& file)
{
    readDiskFile(uiutils::onDisk(file));
    m_path = file;
}

void ReportTemplate::readDiskFile(const QString& file)
{
    m_path = file;
    m_document.readFile(file);
    m_tag = m_document.object().value(keys::tag).toString();
}

void ReportTemplate::adopt(const ReportTemplate& other)
{
    m_document = other.m_document;
    m_tag = other.m_tag;
    m_path = other.m_path;
}

bool ReportTemplate::hasError() const
{
    return m_document.hasError();
}

QString ReportTemplate::toJson() const
{
    return QString::fromUtf8(m_document.toJson().constData());
}

void ReportTemplate::beginReport(const QString& tag)
{
    m_openNodes.emplace_back(QJsonObject {{keys::nodeType, keys::report}, {keys::tag, tag}});
    m_saidTooDeep = false;
}

void ReportTemplate::setKey(const QString& key, const QVariant& val)
{
    if (OpenNode* node = current())
        node->set(key, val.toString());
}

void ReportTemplate::addAttribute(const QString& key, const QVariant& val)
{
    setKey(attributeKey(key), val);
}

void ReportTemplate::beginSection(const QString& tag, const QString& title)
{
    if (current())
        m_openNodes.emplace_back(sectionNode(tag, title), current()->level() + 1);
}

void ReportTemplate::beginTable(const QString& tag, const QString& title)
{
    if (current())
        m_openNodes.emplace_back(tableNode(tag, title), current()->level() + 1);
}

void ReportTemplate::addRow(
        const QString& tag, const QString& rowLabel, const QVariant& val, const QMap<QString, QVariant>& attrs)
{
    OpenNode* node = current();
    if (!node || node->nodeType() != keys::table)
        return;

    QJsonObject cell;
    for (auto it = attrs.cbegin(); it != attrs.cend(); ++it)
        cell.insert(attributeKey(it.key()), it.value().toString());
    cell.insert(keys::label, val.toString());
    cell.insert(keys::tag, tag);
    cell.insert(keys::title, rowLabel);
    node->append(OpenNode::Row, QJsonObject {{keys::cellFamily + QLatin1Char('0'), cell}, {keys::label, rowLabel}});
}

void ReportTemplate::endTable()
{
    closeInto(keys::table, OpenNode::Table);
}

void ReportTemplate::endSection()
{
    closeInto(keys::section, OpenNode::Section);
}

void ReportTemplate::endReport()
{
    if (current())
        m_document.setObject(takeCurrent());
}

QVariant ReportTemplate::getAttr(const QString& name) const
{
    const QJsonObject root = m_document.object();
    const auto it = root.constFind(name);
    return it == root.constEnd() ? QVariant() : it.value().toVariant();
}

OpenNode* ReportTemplate::current()
{
    return m_openNodes.empty() ? nullptr : &m_openNodes.back();
}

void ReportTemplate::closeInto(QLatin1String nodeType, int family)
{
    // The only open node has no parent to go to, and closing it would lose what it holds.
    if (m_openNodes.size() < 2 || current()->nodeType() != nodeType)
        return;
    const int level = current()->level();
    const int height = current()->height();
    const QJsonObject closed = takeCurrent();
    if (!takesChildren(*current()))
        return;
    const int deepest = deepestSection + (family == OpenNode::Table ? 1 : 0);
    // The height, with a table's rows in it, counts where a node begun as a report was made a section by its key.
    if (level > deepest || height > deepestSection + 1) {
        warnOfDepth();
        return;
    }
    current()->append(OpenNode::Family(family), closed, height);
}

void ReportTemplate::warnOfDepth()
{
    if (!m_saidTooDeep)
        qWarning("ReportTemplate: what is nested more than %d sections deep is left out", deepestSection);
    m_saidTooDeep = true;
}

QJsonObject ReportTemplate::takeCurrent()
{
    QJsonObject node = m_openNodes.back().take();
    m_openNodes.pop_back();
    return node;
}
