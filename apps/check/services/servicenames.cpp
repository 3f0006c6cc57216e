#include "check/services/servicenames.h"

#include "check/services/jsonwords.h"

#include "core/dynamicobject_p.h"
#include "service/applicability_p.h"

#include <QSet>

namespace uiutils::check {

namespace {

/// Every proposal compares with all names, at some microseconds each.
constexpr int mostComparisons = 200000;

/// What every object in QML has already.
bool isTaken(const QString& name)
{
    static const QSet<QString> names {QStringLiteral("objectName"), QStringLiteral("objectNameChanged"),
            QStringLiteral("destroyed"), QStringLiteral("deleteLater"), QStringLiteral("destroy"),
            QStringLiteral("toString"), QStringLiteral("valueOf"), QStringLiteral("constructor"),
            QStringLiteral("hasOwnProperty"), QStringLiteral("__proto__")};
    return names.contains(name);
}

bool isManifest(const ServiceItem& item)
{
    return item.description.id.endsWith(QLatin1String(":manifest:"));
}

bool hasName(const ServiceItem& item)
{
    return !item.facts.memberName.isEmpty() && !item.facts.name.isEmpty() && !isManifest(item);
}

/// As an expression of the service itself names it.
QString shortened(const QString& name, const QString& ownTag)
{
    for (const QString& kind : {QStringLiteral("cfg"), QStringLiteral("res")}) {
        const QString beginning = ownTag + QLatin1Char('_') + kind + QLatin1Char('_');
        if (name.startsWith(beginning))
            return kind + QLatin1Char('.') + name.mid(beginning.size());
    }
    return name;
}

void checkService(ServiceDocument* document)
{
    const QString service = document->description.service;
    const QString tag = names::tagOf(service);
    const JsonNode* place = document->tree.root.member("service");
    if (service.isEmpty() || !place || isQmlName(tag))
        return;
    document->findings.error(*place,
            QStringLiteral(
                    "No page can name the items of this service: in QML they begin with %1, which is no name. Use letters, "
                    "digits and underscores%2.")
                    .arg(quoted(tag),
                            service.contains(QLatin1Char('.'))
                                    ? QStringLiteral(" after the last point, and no digit first")
                                    : QStringLiteral(", and no digit first")));
}

/// Names inside of an item: choices in `enums`, members of aggregates.
void checkInnerNames(ServiceDocument* document, const ServiceItem& item, const char* list, const QString& access)
{
    const JsonNode* entries = item.node->member(list);
    if (!entries || !entries->isList())
        return;
    for (const JsonNode& entry : entries->children) {
        const JsonNode* name = entry.member("name");
        if (!name || !name->isText() || name->text.isEmpty())
            continue;
        if (isTaken(name->text))
            document->findings.error(*name,
                    QStringLiteral("Every object in QML has something else called %1 already. Choose another name.")
                            .arg(quoted(name->text)));
        else if (!isQmlName(name->text))
            document->findings.warn(*name,
                    QStringLiteral(
                            "Pages cannot write %1.%2, because %3 is no name in QML. Use letters, digits and underscores, and no digit first.")
                            .arg(access, name->text.left(50), quoted(name->text)));
    }
}

void checkItem(ServiceDocument* document, const ServiceItem& item, const ServiceNames& names)
{
    checkInnerNames(document, item, "choices", QStringLiteral("enums"));
    checkInnerNames(document, item, "members", QStringLiteral("value"));
    if (!hasName(item))
        return;
    const JsonNode& place = item.part("id");
    if (!isQmlName(QLatin1String("x_") + item.facts.memberName))
        return document->findings.error(place,
                QStringLiteral(
                        "No page can name this item, because %1 is no part of a name in QML. Use letters, digits and underscores in the last word of the id.")
                        .arg(quoted(item.facts.name)));
    const NamedItem owner = names.itemOfId(item.description.id);
    const NamedItem first = names.item(item.facts.contextName());
    if (owner.document && owner.document != document && first.item == &item)
        return document->findings.error(place,
                QStringLiteral("The service %1 in %2 has an item with this id too: pages know only one item of an id. "
                               "Write the service's own name into the id.")
                        .arg(quoted(owner.document->description.service), owner.document->path));
    if (!first.item || first.item == &item)
        return;
    const bool isSameFile = first.document == document;
    // The same id twice in one file is told as such.
    if (isSameFile && first.item->description.id == item.description.id)
        return;
    const QString where = isSameFile
            ? QStringLiteral("the item %1").arg(first.item->description.id)
            : QStringLiteral("the item %1 in %2").arg(first.item->description.id, first.document->path);
    document->findings.error(place,
            QStringLiteral(
                    "Pages know this item as %1, and %2 too: they would see only one of both. Change the last word of one id%3.")
                    .arg(item.facts.contextName(), where,
                            isSameFile ? QString() : QStringLiteral(", or the name of one service")));
}

} // namespace

ServiceNames::ServiceNames(const Documents& documents)
{
    for (const auto& document : documents) {
        const QString tag = names::tagOf(document->description.service);
        if (!tag.isEmpty() && !m_tags.contains(tag))
            m_tags.insert(tag, document.get());
        for (const ServiceItem& item : qAsConst(document->items)) {
            const QString name = item.facts.contextName();
            if (hasName(item) && !m_ids.contains(item.description.id))
                m_ids.insert(item.description.id, {document.get(), &item});
            if (!hasName(item) || m_items.contains(name))
                continue;
            m_items.insert(name, {document.get(), &item});
            m_all += name;
        }
    }
}

QString ServiceNames::proposalFor(const QString& contextName, const QString& ownTag) const
{
    if (m_comparisons > mostComparisons)
        return QString();
    m_comparisons += m_all.size();
    // The same item of another service is what was meant most likely.
    QString ending = contextName;
    QStringList sameElsewhere;
    for (const QString& kind : {QStringLiteral("_cfg_"), QStringLiteral("_res_"), QStringLiteral("_act_")}) {
        const int at = contextName.indexOf(kind);
        ending = at > 0 ? contextName.mid(at) : QString();
        for (const QString& name : m_all) {
            if (!ending.isEmpty() && name.endsWith(ending) && name.indexOf(kind) == name.size() - ending.size())
                sameElsewhere += name.left(name.indexOf(kind)) + QLatin1Char('.') + kind.mid(1, 3) + QLatin1Char('.')
                        + ending.mid(kind.size());
        }
        const QString other = kind == QLatin1String("_cfg_") ? QStringLiteral("_res_") : QStringLiteral("_cfg_");
        const QString otherKind = at > 0 ? contextName.left(at) + other + ending.mid(kind.size()) : QString();
        if (sameElsewhere.isEmpty() && m_items.contains(otherKind))
            sameElsewhere += shortened(otherKind, ownTag);
    }
    if (!sameElsewhere.isEmpty())
        return QStringLiteral(" Did you mean %1?").arg(sameElsewhere.mid(0, 3).join(QLatin1String(" or ")));
    QStringList known;
    for (const QString& name : m_all)
        known += shortened(name, ownTag);
    return didYouMean(shortened(contextName, ownTag), known);
}

void checkNames(const Documents& documents, const ServiceNames& names)
{
    QHash<QString, ServiceDocument*> services;
    QHash<QString, ServiceDocument*> tags;
    if (!documents.empty() && names.all().size() > DynamicObject::maximumProperties)
        documents.back()->findings.warnOfFile(
                QStringLiteral("With this file the services have %1 items with names, but pages can know only %2.")
                        .arg(names.all().size())
                        .arg(DynamicObject::maximumProperties));
    for (const auto& document : documents) {
        const QString service = document->description.service;
        const QString tag = names::tagOf(service);
        const JsonNode* place = document->tree.isRead ? document->tree.root.member("service") : nullptr;
        if (!place || service.isEmpty())
            continue;
        checkService(document.get());
        if (services.contains(service))
            document->findings.error(*place,
                    QStringLiteral("The service %1 is described by %2 already: this file would be left out.")
                            .arg(quoted(service), services.value(service)->path));
        else if (tags.contains(tag))
            document->findings.warn(*place,
                    QStringLiteral(
                            "Pages name the items of this service by its last part, %1, and those of the service %2 too: items of the same name would hide each other.")
                            .arg(quoted(tag), quoted(tags.value(tag)->description.service)));
        else
            tags.insert(tag, document.get());
        const bool isTwice = services.contains(service);
        if (!isTwice)
            services.insert(service, document.get());
        for (const ServiceItem& item : qAsConst(document->items)) {
            if (!isTwice)
                checkItem(document.get(), item, names);
        }
    }
}

} // namespace uiutils::check
