#include "check/services/servicedocument.h"

#include "check/services/schemawords.h"

#include "embedded/filedescription_p.h"
#include "embedded/itemtypes_p.h"

#include <kiv/plovjsondocument.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

// Resources of a static library must be initialized explicitly.
static void initResources()
{
    Q_INIT_RESOURCE(schemas);
}

namespace uiutils::check {

namespace {

const JsonNode& schema()
{
    static const JsonTree tree = [] {
        initResources();
        QFile file(QStringLiteral(":/uiutils/schemas/service-file.schema.json"));
        const bool isOpen = file.open(QIODevice::ReadOnly);
        return readJson(isOpen ? file.readAll() : QByteArray("{}"));
    }();
    return tree.root;
}

/// How long the UTF-8 sequence is that begins at a place; 0 if none does.
int sequenceLength(const QByteArray& text, int at)
{
    const auto byteAt = [&text](int place) { return place < text.size() ? uchar(text.at(place)) : uchar(0); };
    const uchar first = byteAt(at);
    if (first < 0x80)
        return 1;
    const int length = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : 2;
    if (first < 0xc2 || first > 0xf4)
        return 0;
    for (int i = 1; i < length; ++i) {
        if ((byteAt(at + i) & 0xc0) != 0x80)
            return 0;
    }
    // Too long for what they say, surrogates, and beyond the last character.
    const uchar second = byteAt(at + 1);
    const bool isWrong = (first == 0xe0 && second < 0xa0) || (first == 0xed && second >= 0xa0)
            || (first == 0xf0 && second < 0x90) || (first == 0xf4 && second >= 0x90);
    return isWrong ? 0 : length;
}

int containersIn(const QByteArray& text)
{
    return int(std::count_if(text.begin(), text.end(), [](char c) { return c == '{' || c == '['; }));
}

} // namespace

void ServiceDocument::read()
{
    if (!readText() || !isUtf8())
        return;
    if (containersIn(text) > PlovJsonDocument::maximumContainers)
        return findings.errorOfFile(
                QStringLiteral("The file holds more than the %1 objects and lists that a service file may have.")
                        .arg(PlovJsonDocument::maximumContainers));
    tree = readJson(text);
    for (const JsonRemark& doubt : qAsConst(tree.doubts))
        findings.error(doubt.offset, doubt.message);
    for (const JsonRemark& oddity : qAsConst(tree.oddities))
        findings.warn(oddity.offset, oddity.message);
    if (!tree.isRead)
        return findings.error(tree.problem.offset, tree.problem.message);
    QJsonParseError error {};
    document = QJsonDocument::fromJson(text, &error).object();
    if (error.error != QJsonParseError::NoError) {
        tree.isRead = false;
        return findings.error(
                error.offset, QStringLiteral("The JSON cannot be read here: %1.").arg(error.errorString()));
    }
    checkSchema();
    if (!tree.root.isObject())
        return;
    description = kiv::embedded::describedService(document);
    findItems();
}

bool ServiceDocument::readText()
{
    const QFileInfo info(path);
    if (!info.exists()) {
        findings.errorOfFile(QStringLiteral("There is no such file."));
        return false;
    }
    // A pipe or a device could keep the reader waiting forever.
    if (!info.isFile()) {
        findings.errorOfFile(QStringLiteral("This is no regular file."));
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        findings.errorOfFile(QStringLiteral("The file cannot be opened: %1.").arg(file.errorString()));
        return false;
    }
    if (file.size() > PlovJsonDocument::maximumFileSize) {
        findings.errorOfFile(QStringLiteral("The file is larger than the %1 MiB that a service file may have.")
                                     .arg(PlovJsonDocument::maximumFileSize / 1024 / 1024));
        return false;
    }
    text = file.read(PlovJsonDocument::maximumFileSize);
    return true;
}

bool ServiceDocument::isUtf8()
{
    if (text.startsWith("\xff\xfe") || text.startsWith("\xfe\xff") || text.left(200).contains('\0')) {
        findings.errorOfFile(QStringLiteral("The file is not in UTF-8 but, as it seems, in UTF-16: save it as UTF-8."));
        return false;
    }
    for (int at = 0; at < text.size();) {
        const int length = sequenceLength(text, at);
        if (length == 0) {
            findings.error(at,
                    QStringLiteral("The file is not in UTF-8: no character has the byte 0x%1 here. Save it as UTF-8.")
                            .arg(QString::number(uchar(text.at(at)), 16)));
            return false;
        }
        at += length;
    }
    return true;
}

void ServiceDocument::checkSchema()
{
    const QVector<Violation> wrong = violations(schema(), tree.root);
    for (const Violation& violation : wrong)
        findings.error(violation.offset, violation.message);
}

void ServiceDocument::findItems()
{
    const JsonNode* list = itemList();
    if (!list || !list->isList())
        return;
    const QVector<names::ItemFacts> facts = names::factsOfDocument(document);
    int next = 0;
    items.reserve(int(list->children.size()));
    for (int i = 0; i < int(list->children.size()); ++i) {
        const JsonNode& node = list->children[size_t(i)];
        if (!node.isObject())
            continue;
        ServiceItem item;
        item.node = &node;
        item.description = description.items.at(i);
        item.type = kiv::embedded::typeCode(item.description.type);
        if (next < facts.size() && facts.at(next).id == item.description.id)
            item.facts = facts.at(next++);
        if (!item.description.id.isEmpty() && !byId.contains(item.description.id))
            byId.insert(item.description.id, items.size());
        items.append(item);
    }
}

bool ServiceDocument::isSound(const ServiceItem& item) const
{
    return !findings.hasErrorWithin(item.node->offset, item.node->end);
}

} // namespace uiutils::check
