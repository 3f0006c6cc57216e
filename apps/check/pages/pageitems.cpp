#include "check/pages/pageitems.h"

#include "service/kivaggregatedata.h"
#include "service/kivlistaggregatedata.h"
#include "service/manifest.h"

#include <algorithm>

namespace uiutils::check {

namespace {

const QLatin1String categories[] = {QLatin1String("_cfg_"), QLatin1String("_res_"), QLatin1String("_act_")};

/// "WorkflowManager" for "workflow_manager".
QString moduleName(const QString& tag)
{
    QString name;
    const QStringList words
            = QString(tag).replace(QLatin1Char('-'), QLatin1Char('_')).split(QLatin1Char('_'), Qt::SkipEmptyParts);
    for (const QString& word : words)
        name += word.at(0).toUpper() + word.mid(1);
    return name;
}

const QMetaObject& metaObjectOf(const names::ItemFacts& item)
{
    if (item.type == QLatin1String("aggregate"))
        return KivAggregateData::staticMetaObject;
    return item.type == QLatin1String("listAggregate") ? KivListAggregateData::staticMetaObject
                                                       : KivData::staticMetaObject;
}

/// What every object has in scripts.
bool isOfEveryObject(const QString& name)
{
    static const QSet<QString> names {QStringLiteral("toString"), QStringLiteral("toLocaleString"),
            QStringLiteral("valueOf"), QStringLiteral("hasOwnProperty"), QStringLiteral("isPrototypeOf"),
            QStringLiteral("propertyIsEnumerable"), QStringLiteral("constructor"), QStringLiteral("destroy")};
    return names.contains(name);
}

bool isForPages(const QMetaMethod& method)
{
    return method.access() == QMetaMethod::Public && method.methodType() != QMetaMethod::Constructor;
}

Member memberOf(const QMetaObject& type, const QString& name)
{
    const int property = type.indexOfProperty(name.toLatin1().constData());
    if (property >= 0)
        return {Member::Property, type.property(property).isWritable()};
    if (isOfEveryObject(name))
        return {Member::Operation, false};
    for (int i = 0; i < type.methodCount(); ++i) {
        const QMetaMethod method = type.method(i);
        if (isForPages(method) && QLatin1String(method.name()) == name)
            return {method.methodType() == QMetaMethod::Signal ? Member::Signal : Member::Operation, false};
    }
    return {};
}

QStringList membersOf(const QMetaObject& type)
{
    QStringList names;
    for (int i = QObject::staticMetaObject.propertyCount(); i < type.propertyCount(); ++i)
        names += QString::fromLatin1(type.property(i).name());
    for (int i = QObject::staticMetaObject.methodCount(); i < type.methodCount(); ++i) {
        if (isForPages(type.method(i)))
            names += QString::fromLatin1(type.method(i).name());
    }
    names.removeDuplicates();
    return names;
}

} // namespace

PageItems::PageItems(const QVector<names::ItemFacts>& items)
    : m_items(items)
{
    for (int i = 0; i < m_items.size(); ++i) {
        const names::ItemFacts& item = m_items.at(i);
        m_services.insert(item.service);
        if (item.id.endsWith(QLatin1String(":manifest:")))
            m_batchServices.insert(item.service);
        m_tags.insert(item.tag);
        m_modules.insert(moduleName(item.tag), item.tag);
        if (item.memberName.isEmpty())
            continue;
        m_byContextName.insert(item.contextName(), i);
        m_memberNames[item.tag] += item.memberName;
    }
}

const names::ItemFacts* PageItems::item(const QString& contextName) const
{
    const auto found = m_byContextName.constFind(contextName);
    return found == m_byContextName.constEnd() ? nullptr : &m_items.at(*found);
}

const names::ItemFacts* PageItems::item(const QString& tag, const QString& memberName) const
{
    return item(tag + QLatin1Char('_') + memberName);
}

bool PageItems::hasMember(const QString& tag, const QString& name) const
{
    if (name == QLatin1String("service") || item(tag, name) || isOfEveryObject(name))
        return true;
    const QStringList known = memberNames(tag);
    return std::any_of(known.cbegin(), known.cend(), [&](const QString& member) {
        const names::ItemFacts& facts = *item(tag, member);
        return name.startsWith(member + QLatin1Char('_')) && choiceOf(facts, name.mid(member.size() + 1));
    });
}

const names::Choice* choiceOf(const names::ItemFacts& item, const QString& name)
{
    const auto found = std::find_if(item.choices.cbegin(), item.choices.cend(),
            [&name](const names::Choice& choice) { return choice.name == name; });
    return found == item.choices.cend() ? nullptr : &*found;
}

QString tagInName(const QString& name)
{
    int first = -1;
    for (const QLatin1String category : categories) {
        const int place = name.indexOf(category);
        if (place > 0 && place + category.size() < name.size() && (first < 0 || place < first))
            first = place;
    }
    return name.left(std::max(first, 0));
}

Member memberOf(const names::ItemFacts& item, const QString& name)
{
    return memberOf(metaObjectOf(item), name);
}

QStringList membersOf(const names::ItemFacts& item)
{
    return membersOf(metaObjectOf(item));
}

Member memberOfService(const QString& name)
{
    return memberOf(Manifest::staticMetaObject, name);
}

QStringList membersOfServices()
{
    return membersOf(Manifest::staticMetaObject);
}

bool isRecord(const names::ItemFacts& item)
{
    return item.type == QLatin1String("aggregate") || item.type == QLatin1String("listAggregate");
}

bool isVector(const names::ItemFacts& item)
{
    return item.type.startsWith(QLatin1String("std::vector"));
}

bool isNumber(const names::ItemFacts& item)
{
    static const QSet<QString> types {QStringLiteral("int"), QStringLiteral("uint"), QStringLiteral("qint64"),
            QStringLiteral("quint64"), QStringLiteral("double")};
    return types.contains(item.type);
}

bool isSwitch(const names::ItemFacts& item)
{
    return item.type == QLatin1String("bool");
}

bool isChoice(const names::ItemFacts& item)
{
    return item.isEnumeration && !isSwitch(item) && !isVector(item);
}

bool isText(const names::ItemFacts& item)
{
    return item.type == QLatin1String("std::string");
}

} // namespace uiutils::check
