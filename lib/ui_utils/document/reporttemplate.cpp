#include "document/reporttemplate.h"

#include "base/paths_p.h"
#include "document/opennode_p.h"
#include "document/reportkeys_p.h"
#include "document/reportrow_p.h"
#include "document/tablerows.h"

#include <kiv/plovjsondocument.h>

#include <vector>

using uiutils::OpenNode;
namespace keys = uiutils::keys;

namespace {

// All code that walks JSON, Qt's classes included, calls itself for each level; Qt's parser stops at 1,024.
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

} // namespace

/// The finished document, and the open nodes, of which the last one is the current one.
class uiutils::ReportTemplatePrivate
{
public:
    OpenNode* current();
    /// Null unless the current node is a table.
    OpenNode* currentTable();
    void closeInto(QLatin1String nodeType, int family);
    QJsonObject takeCurrent();
    void warnOfDepth();

    PlovJsonDocument document;
    std::vector<OpenNode> openNodes;
    QString tag;
    QString path;
    bool saidTooDeep = false;
};

using uiutils::ReportTemplatePrivate;

ReportTemplate::ReportTemplate(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<ReportTemplatePrivate>())
{
}

ReportTemplate::~ReportTemplate() = default;

QJsonObject ReportTemplate::object() const
{
    return d->document.object();
}

QString ReportTemplate::getTag() const
{
    return d->tag;
}

QString ReportTemplate::getPath() const
{
    return d->path;
}

QString ReportTemplate::errorString() const
{
    return d->document.errorString();
}

void ReportTemplate::readFile(const QString& file)
{
    readDiskFile(uiutils::onDisk(file));
    d->path = file;
}

void ReportTemplate::readDiskFile(const QString& file)
{
    d->path = file;
    d->document.readFile(file);
    d->tag = d->document.object().value(keys::tag).toString();
}

void ReportTemplate::adopt(const ReportTemplate& other)
{
    d->document = other.d->document;
    d->tag = other.d->tag;
    d->path = other.d->path;
}

void ReportTemplate::setObject(const QJsonObject& root)
{
    d->document.setObject(root);
}

bool ReportTemplate::hasError() const
{
    return d->document.hasError();
}

QString ReportTemplate::toJson() const
{
    return QString::fromUtf8(d->document.toJson().constData());
}

void ReportTemplate::beginReport(const QString& tag)
{
    d->openNodes.emplace_back(QJsonObject {{keys::nodeType, keys::report}, {keys::tag, tag}});
    d->saidTooDeep = false;
}

void ReportTemplate::setKey(const QString& key, const QVariant& val)
{
    if (OpenNode* node = d->current())
        node->set(key, val.toString());
}

void ReportTemplate::addAttribute(const QString& key, const QVariant& val)
{
    setKey(uiutils::attributeKey(key), val);
}

void ReportTemplate::beginSection(const QString& tag, const QString& title)
{
    if (d->current())
        d->openNodes.emplace_back(sectionNode(tag, title), d->current()->level() + 1);
}

void ReportTemplate::beginTable(const QString& tag, const QString& title)
{
    if (d->current())
        d->openNodes.emplace_back(tableNode(tag, title), d->current()->level() + 1);
}

void ReportTemplate::addRow(
        const QString& tag, const QString& rowLabel, const QVariant& val, const QMap<QString, QVariant>& attrs)
{
    if (OpenNode* table = d->currentTable())
        table->append(OpenNode::Row, uiutils::reportRow(tag, rowLabel, val, attrs));
}

void ReportTemplate::endTable()
{
    d->closeInto(keys::table, OpenNode::Table);
}

void ReportTemplate::endSection()
{
    d->closeInto(keys::section, OpenNode::Section);
}

void ReportTemplate::endReport()
{
    if (d->current())
        d->document.setObject(d->takeCurrent());
}

void ReportTemplate::addRows(uiutils::TableRows* rows)
{
    OpenNode* table = d->currentTable();
    if (!table || !rows || rows->count() == 0)
        return;
    table->numberByArrival(OpenNode::Row);
    const QVector<QJsonObject> taken = rows->take();
    for (const QJsonObject& row : taken)
        table->append(OpenNode::Row, row);
    // Last, because a slot may close the table.
    Q_EMIT rows->countChanged();
}

QVariant ReportTemplate::getAttr(const QString& name) const
{
    const QJsonObject root = d->document.object();
    const auto it = root.constFind(name);
    return it == root.constEnd() ? QVariant() : it.value().toVariant();
}

OpenNode* ReportTemplatePrivate::current()
{
    return openNodes.empty() ? nullptr : &openNodes.back();
}

OpenNode* ReportTemplatePrivate::currentTable()
{
    OpenNode* node = current();
    return node && node->nodeType() == keys::table ? node : nullptr;
}

void ReportTemplatePrivate::closeInto(QLatin1String nodeType, int family)
{
    // The only open node has no parent; closing it would lose its contents.
    if (openNodes.size() < 2 || current()->nodeType() != nodeType)
        return;
    const int level = current()->level();
    const int height = current()->height();
    const QJsonObject closed = takeCurrent();
    if (!takesChildren(*current()))
        return;
    const int deepest = deepestSection + (family == OpenNode::Table ? 1 : 0);
    // The height, which includes the rows of a table, matters if a node that began as a report became a section by its
    // key.
    if (level > deepest || height > deepestSection + 1) {
        warnOfDepth();
        return;
    }
    current()->append(OpenNode::Family(family), closed, height);
}

void ReportTemplatePrivate::warnOfDepth()
{
    if (!saidTooDeep)
        qWarning("ReportTemplate: what is nested more than %d sections deep is left out", deepestSection);
    saidTooDeep = true;
}

QJsonObject ReportTemplatePrivate::takeCurrent()
{
    QJsonObject node = openNodes.back().take();
    openNodes.pop_back();
    return node;
}
