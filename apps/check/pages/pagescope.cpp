#include "check/pages/pagescope.h"

#include "check/pages/expressions.h"
#include "check/pages/pagefile.h"

namespace uiutils::check {

using namespace QQmlJS::AST;

namespace {

/// Of names that stand for names, and of members of members.
constexpr int longestChain = 10;

} // namespace

Meaning PageScope::meaningOf(ExpressionNode* expression, int depth) const
{
    expression = unwrapped(expression);
    if (!expression || depth > longestChain)
        return {};
    if (const auto* const name = cast<IdentifierExpression*>(expression))
        return ofName(name->name.toString(), depth);
    const QString service = serviceIn(expression);
    if (!service.isEmpty())
        return names.isDeclared(QStringLiteral("services")) ? Meaning() : Meaning {Meaning::Service, nullptr, service};
    if (auto* const field = cast<FieldMemberExpression*>(expression))
        return ofMember(meaningOf(field->base, depth + 1), field->name.toString());
    return {};
}

Meaning PageScope::ofName(const QString& name, int depth) const
{
    if (names.isDeclared(name)) {
        // An object between the use and the declaration may have a property of that name.
        const bool isCertain = imports.isComplete && !imports.properties.contains(name);
        return isCertain ? meaningOf(names.constant(file, name), depth + 1) : Meaning();
    }
    if (const names::ItemFacts* const item = items.item(name))
        return {Meaning::Item, item, QString()};
    if (name == QLatin1String("services"))
        return {Meaning::Services, nullptr, QString()};
    const auto singleton = imports.singletons.constFind(name);
    return singleton == imports.singletons.constEnd() ? Meaning() : Meaning {Meaning::Singleton, nullptr, *singleton};
}

Meaning PageScope::ofMember(const Meaning& base, const QString& name) const
{
    if (base.kind == Meaning::Singleton) {
        const names::ItemFacts* const item = items.item(base.member, name);
        return item ? Meaning {Meaning::Item, item, QString()} : Meaning();
    }
    if (base.kind != Meaning::Item)
        return {};
    return {name == QLatin1String("enums") ? Meaning::Choices : Meaning::OfItem, base.item, name};
}

} // namespace uiutils::check
