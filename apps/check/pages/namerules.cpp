#include "check/pages/namerules.h"

#include "check/pages/expressions.h"
#include "check/pages/pagefile.h"
#include "check/wording.h"

#include <algorithm>
#include <iterator>

namespace uiutils::check {

using namespace QQmlJS::AST;

namespace {

QString unknownMember(const names::ItemFacts& item, const QString& name)
{
    const QStringList members = membersOf(item);
    // "unit" for "unitString" is likelier than any other name of two letters.
    QStringList longer;
    std::copy_if(members.cbegin(), members.cend(), std::back_inserter(longer), [&](const QString& member) {
        return member.startsWith(name, Qt::CaseInsensitive) && name.size() > 2
                && memberOf(item, member).kind == Member::Property;
    });
    const QString proposed = longer.isEmpty() || members.contains(name, Qt::CaseInsensitive)
            ? proposal(name, members)
            : proposal(longer.mid(0, 3));
    return QStringLiteral("An item has no \"%1\".%2")
            .arg(name,
                    proposed.isEmpty() ? QStringLiteral(" It has value, valueString, label, unitString, isReady, "
                                                        "applicable, error and more.")
                                       : proposed);
}

QString unknownChoice(const names::ItemFacts& item, const QString& name)
{
    if (!item.isEnumeration)
        return QStringLiteral("%1 has no choices, so it has no enums.%2.").arg(item.contextName(), name);
    QStringList known;
    for (const names::Choice& choice : item.choices)
        known += choice.name;
    return QStringLiteral("%1 has no choice \"%2\". Its choices are %3.")
            .arg(item.contextName(), name, enumeration(known));
}

QString unknownService(const QString& name, const QStringList& known)
{
    const QString proposed = proposal(name, known);
    return proposed.isEmpty() ? QStringLiteral(" The services are %1.").arg(enumeration(known)) : proposed;
}

} // namespace

void NameRules::report(const QQmlJS::SourceLocation& place, const QString& message, const QString& item)
{
    m_findings->append(m_scope.file.at(place, message, item));
}

bool NameRules::visit(TypeOfExpression* type)
{
    m_asked.insert(unwrapped(type->expression));
    return true;
}

bool NameRules::visit(BinaryExpression* pair)
{
    if (isComparison(pair->op) && (isNothing(pair->left) || isNothing(pair->right)))
        m_asked.insert(unwrapped(isNothing(pair->left) ? pair->right : pair->left));
    return true;
}

bool NameRules::visit(IdentifierExpression* expression)
{
    const QString name = expression->name.toString();
    const QString tag = tagInName(name);
    const FileNames& own = m_scope.names.of(m_scope.file);
    if (tag.isEmpty() || m_scope.items.isEmpty() || m_scope.items.item(name) || m_scope.names.isDeclared(name)
            || own.guarded.contains(name) || m_scope.names.isText(name))
        return true;
    const bool isGuarded = std::any_of(own.guardedServices.cbegin(), own.guardedServices.cend(),
            [&tag](const QString& service) { return names::tagOf(service) == tag; });
    if (m_scope.items.hasTag(tag))
        report(expression->identifierToken,
                QStringLiteral("No item has the name %1.%2").arg(name, nearName(name, m_scope.items.contextNames())));
    else if (!isGuarded)
        report(expression->identifierToken,
                QStringLiteral("No item has the name %1, because there is no service \"%2\".%3")
                        .arg(name, tag, unknownService(tag, m_scope.items.tags())));
    return true;
}

bool NameRules::visit(FieldMemberExpression* field)
{
    const QString service = serviceIn(field);
    const bool isOfServices = !service.isEmpty() && !m_scope.names.isDeclared(QStringLiteral("services"));
    if (isOfServices)
        judgeService(field->identifierToken, service);
    else if (!m_asked.contains(field))
        judgeMember(m_scope.meaningOf(field->base), field);
    return true;
}

bool NameRules::visit(ArrayMemberExpression* element)
{
    const QString service = serviceIn(element);
    if (!service.isEmpty() && !m_scope.names.isDeclared(QStringLiteral("services")))
        judgeService(element->expression->firstSourceLocation(), service);
    return true;
}

QString NameRules::nearName(const QString& name, const QStringList& known)
{
    // Some seconds: a page with more wrong names than that was made by a program, or for other services.
    constexpr int mostComparisons = 200000;
    if (m_comparisons > mostComparisons)
        return QString();
    m_comparisons += known.size();
    return proposal(name, known);
}

void NameRules::judgeService(const QQmlJS::SourceLocation& place, const QString& name)
{
    static const QSet<QString> ofTheMap {QStringLiteral("keys"), QStringLiteral("valueChanged"),
            QStringLiteral("toString"), QStringLiteral("hasOwnProperty")};
    const bool isAsked = m_scope.names.of(m_scope.file).guardedServices.contains(name);
    if (m_scope.items.isEmpty() || m_scope.items.hasService(name) || isAsked || ofTheMap.contains(name))
        return;
    const QStringList known = m_scope.items.services();
    QString likely = unknownService(name, known);
    for (const QString& service : known) {
        if (names::tagOf(service) == name)
            likely = QStringLiteral(" Its full name is needed: services[\"%1\"].").arg(service);
    }
    report(place, QStringLiteral("There is no service \"%1\".%2").arg(name, likely));
}

void NameRules::judgeMember(const Meaning& base, FieldMemberExpression* field)
{
    const QString name = field->name.toString();
    const QQmlJS::SourceLocation place = field->identifierToken;
    if (base.kind == Meaning::Item && memberOf(*base.item, name).kind == Member::None)
        report(place, unknownMember(*base.item, name), base.item->id);
    else if (base.kind == Meaning::Choices && !choiceOf(*base.item, name) && memberOfService(name).kind == Member::None)
        report(place, unknownChoice(*base.item, name), base.item->id);
    else if (base.kind == Meaning::Service && memberOfService(name).kind == Member::None)
        report(place,
                QStringLiteral("A service has no \"%1\".%2")
                        .arg(name, QLatin1String(" It has ") + enumeration(membersOfServices()) + QLatin1Char('.')));
    else if (base.kind == Meaning::Singleton && !m_scope.items.hasMember(base.member, name))
        report(place,
                QStringLiteral("The service \"%1\" has no item %2.%3")
                        .arg(base.member, name, nearName(name, m_scope.items.memberNames(base.member))));
}

} // namespace uiutils::check
