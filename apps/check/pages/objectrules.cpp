#include "check/pages/objectrules.h"

#include "check/pages/entryfit.h"
#include "check/pages/expressions.h"
#include "check/pages/pagefile.h"
#include "check/pages/qmlmodules.h"
#include "check/wording.h"

#include <QHash>

namespace uiutils::check {

using namespace QQmlJS::AST;

namespace {

/// The binding of a property by one expression or block; null without one.
UiScriptBinding* bindingOf(UiObjectMemberList* members, const QString& property)
{
    for (; members; members = members->next) {
        auto* const binding = cast<UiScriptBinding*>(members->member);
        if (binding && toText(binding->qualifiedId) == property)
            return binding;
    }
    return nullptr;
}

ExpressionNode* valueOf(UiObjectMemberList* members, const QString& property)
{
    UiScriptBinding* const binding = bindingOf(members, property);
    return binding ? expressionOf(binding->statement) : nullptr;
}

bool isHandler(const QString& name)
{
    return name.size() > 2 && name.startsWith(QLatin1String("on")) && name.at(2).isUpper();
}

/// "valueChanged" for "onValueChanged".
QString signalOf(const QString& handler)
{
    return handler.at(2).toLower() + handler.mid(3);
}

/// Whether a property that everybody knows holds a text, a number or a truth, for which no object can stand.
bool isPlainProperty(const QString& property)
{
    static const QSet<QString> names {QStringLiteral("text"), QStringLiteral("title"),
            QStringLiteral("placeholderText"), QStringLiteral("visible"), QStringLiteral("enabled"),
            QStringLiteral("checked"), QStringLiteral("opacity"), QStringLiteral("width"), QStringLiteral("height"),
            QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("color")};
    return names.contains(property);
}

} // namespace

void ObjectRules::report(
        const QQmlJS::SourceLocation& place, Finding::Weight weight, const QString& message, const QString& item)
{
    Finding finding = m_scope.file.at(place, message, item);
    finding.weight = weight;
    m_findings->append(finding);
}

bool ObjectRules::visit(UiObjectDefinition* object)
{
    judge({toText(object->qualifiedTypeNameId), object->initializer ? object->initializer->members : nullptr});
    return true;
}

bool ObjectRules::visit(UiObjectBinding* object)
{
    judge({toText(object->qualifiedTypeNameId), object->initializer ? object->initializer->members : nullptr});
    return true;
}

void ObjectRules::judge(const Object& object)
{
    judgeCopies(object);
    if (object.type == QLatin1String("Connections"))
        judgeConnections(object);
    else if (object.type == QLatin1String("KIVSignal"))
        judgeSignal(object);
    else
        judgeEntry(object);
}

void ObjectRules::judgeCopies(const Object& object)
{
    // By what is there once: the line of the first.
    QHash<QString, int> lines;
    const auto enter = [&](const QString& key, const QQmlJS::SourceLocation& place, const QString& words) {
        const int first = lines.value(key);
        if (first > 0)
            report(place, Finding::Error, words.arg(key.section(QLatin1Char(' '), -1), QString::number(first)), {});
        else
            lines.insert(key, int(place.startLine));
    };
    for (UiObjectMemberList* members = object.members; members; members = members->next) {
        const auto* const bound = cast<UiScriptBinding*>(members->member);
        const auto* const child = cast<UiObjectDefinition*>(members->member);
        const auto* const declared = cast<UiPublicMember*>(members->member);
        if (bound) {
            enter(QLatin1String("set ") + toText(bound->qualifiedId), bound->qualifiedId->identifierToken,
                    QStringLiteral("\"%1\" of this object has a value in line %2 already. Remove one."));
            judgeProperty(object, bound->qualifiedId);
        } else if (declared) {
            enter(QLatin1String("declared ") + declared->name, declared->identifierToken,
                    QStringLiteral("\"%1\" is declared in line %2 already. Remove one."));
        }
        const auto* const id = child && child->initializer
                ? cast<IdentifierExpression*>(valueOf(child->initializer->members, QStringLiteral("id")))
                : nullptr;
        if (id)
            enter(QLatin1String("id ") + id->name, id->identifierToken,
                    QStringLiteral("The object in line %2 has the id \"%1\" too. Each needs its own."));
    }
    const auto* const own = cast<IdentifierExpression*>(valueOf(object.members, QStringLiteral("id")));
    if (own && own->name.at(0).isUpper())
        report(own->identifierToken, Finding::Error,
                QStringLiteral("An id begins with a small letter: \"%1\" does not.").arg(own->name));
}

/// Only a slip in a name that no type has: the properties of a single type are not known with certainty.
void ObjectRules::judgeProperty(const Object& object, UiQualifiedId* name)
{
    constexpr int shortest = 3;
    const QString property = name->name.toString();
    // Groups have properties of values, elements of a list have roles.
    const bool isFree = object.type.isEmpty() || !object.type.section(QLatin1Char('.'), -1).at(0).isUpper()
            || object.type.section(QLatin1Char('.'), -1) == QLatin1String("ListElement");
    if (isFree || !m_scope.imports.isComplete || property.size() < shortest || property.at(0).isUpper()
            || isHandler(property) || m_scope.imports.properties.contains(property)
            || builtInProperties().contains(property) || m_scope.names.isDeclared(property)
            || property == QLatin1String("id"))
        return;
    QStringList near;
    const QSet<QString> known = m_scope.imports.properties + builtInProperties();
    for (const QString& other : known) {
        if (other.size() >= shortest && isSlip(property, other))
            near += other;
    }
    near.sort();
    if (!near.isEmpty())
        report(name->identifierToken, Finding::Error,
                QStringLiteral("No object has a property \"%1\".%2").arg(property, proposal(near.mid(0, shortest))));
}

void ObjectRules::judgeEntry(const Object& object)
{
    const QString& prefix = m_scope.imports.kitPrefix;
    if (!m_scope.imports.hasKit || !object.type.startsWith(prefix))
        return;
    const QString type = object.type.mid(prefix.size());
    ExpressionNode* const value = valueOf(object.members, QStringLiteral("item"));
    if (!isEntry(type) || !value || m_scope.imports.ownTypes.contains(type))
        return;
    const QQmlJS::SourceLocation place = value->firstSourceLocation();
    const Meaning meaning = m_scope.meaningOf(value);
    if (meaning.isValue())
        report(place, Finding::Error,
                QStringLiteral("An entry needs the item itself, to write to it: item: %1.")
                        .arg(meaning.item->contextName()),
                meaning.item->id);
    // A page that says the type itself knows better.
    if (meaning.kind != Meaning::Item || bindingOf(object.members, QStringLiteral("type")))
        return;
    const Misfit problem = misfit(type, *meaning.item);
    if (!problem.message.isEmpty()) {
        report(place, problem.weight, problem.message, meaning.item->id);
        return;
    }
    const bool hasLine = (meaning.item->minimum.isValid() || bindingOf(object.members, QStringLiteral("minimum")))
            && (meaning.item->maximum.isValid() || bindingOf(object.members, QStringLiteral("maximum")));
    if (type == QLatin1String("ItemSlider") && !hasLine)
        report(place, Finding::Warning,
                QStringLiteral("%1 has no minimum or no maximum, so the slider has no line. Give the item both, or use "
                               "ItemStepper.")
                        .arg(meaning.item->contextName()),
                meaning.item->id);
}

void ObjectRules::judgeConnections(const Object& object)
{
    const Meaning target = m_scope.meaningOf(valueOf(object.members, QStringLiteral("target")));
    const bool isService = target.kind == Meaning::Service && m_scope.items.hasService(target.member);
    if ((target.kind != Meaning::Item && !isService)
            || bindingOf(object.members, QStringLiteral("ignoreUnknownSignals")))
        return;
    for (UiObjectMemberList* members = object.members; members; members = members->next) {
        if (auto* const binding = cast<UiScriptBinding*>(members->member)) {
            judgeHandler(target, binding->firstSourceLocation(), toText(binding->qualifiedId));
        } else if (auto* const source = cast<UiSourceElement*>(members->member)) {
            if (FunctionExpression* const function = source->sourceElement->asFunctionDefinition())
                judgeHandler(target, function->identifierToken, function->name.toString());
        }
    }
}

void ObjectRules::judgeHandler(const Meaning& target, const QQmlJS::SourceLocation& place, const QString& handler)
{
    if (!isHandler(handler))
        return;
    const QString wanted = signalOf(handler);
    const auto kindOf = [&target](const QString& name) {
        return (target.item ? memberOf(*target.item, name) : memberOfService(name)).kind;
    };
    if (kindOf(wanted) == Member::Signal)
        return;
    QStringList handlers;
    const QStringList known = target.item ? membersOf(*target.item) : membersOfServices();
    for (const QString& name : known) {
        if (kindOf(name) == Member::Signal)
            handlers += QLatin1String("on") + name.at(0).toUpper() + name.mid(1);
    }
    const QString what = target.item ? QStringLiteral("An item") : QStringLiteral("A service");
    const QString proposed = proposal(handler, handlers);
    report(place, Finding::Error,
            QStringLiteral("%1 has no signal \"%2\", so this is never called.%3")
                    .arg(what, wanted,
                            proposed.isEmpty() ? QLatin1String(" There are ") + enumeration(handlers) + QLatin1Char('.')
                                               : proposed),
            target.item ? target.item->id : QString());
}

void ObjectRules::judgeSignal(const Object& object)
{
    const auto* const text = cast<StringLiteral*>(valueOf(object.members, QStringLiteral("service")));
    if (!text || m_scope.items.isEmpty() || m_scope.items.hasService(text->value.toString()))
        return;
    const QString name = text->value.toString();
    const QString proposed = proposal(name, m_scope.items.services());
    report(text->literalToken, Finding::Warning,
            QStringLiteral("There is no service \"%1\", so nothing is heard from it.%2")
                    .arg(name,
                            proposed.isEmpty()
                                    ? QStringLiteral(" The services are %1.").arg(enumeration(m_scope.items.services()))
                                    : proposed));
}

bool ObjectRules::visit(UiScriptBinding* binding)
{
    if (ExpressionNode* const value = expressionOf(binding->statement))
        judgeBinding(toText(binding->qualifiedId), value);
    return true;
}

void ObjectRules::judgeBinding(const QString& property, ExpressionNode* value)
{
    const Meaning meaning = m_scope.meaningOf(value);
    const bool isPlain = isPlainProperty(property) && !m_scope.names.isDeclared(property);
    const QQmlJS::SourceLocation place = value->firstSourceLocation();
    if (meaning.kind == Meaning::Item && isPlain)
        report(place, Finding::Error,
                QStringLiteral("\"%1\" needs a value, and %2 is an item. Write %2.%3.")
                        .arg(property, meaning.item->contextName(),
                                isSwitch(*meaning.item) || property != QLatin1String("text")
                                        ? QStringLiteral("value")
                                        : QStringLiteral("valueString")),
                meaning.item->id);
    else if (meaning.isValue() && isRecord(*meaning.item) && isPlain)
        report(place, Finding::Error,
                QStringLiteral("The value of %1 is no text: it is %2. Write %1.valueString%3.")
                        .arg(meaning.item->contextName(),
                                meaning.item->type == QLatin1String("aggregate")
                                        ? QStringLiteral("an object with members")
                                        : QStringLiteral("a table, which is the model of a view"),
                                meaning.item->type == QLatin1String("aggregate")
                                        ? QStringLiteral(", or %1.value.MEMBER").arg(meaning.item->contextName())
                                        : QString()),
                meaning.item->id);
    else if (meaning.kind == Meaning::Item && property == QLatin1String("model")
            && (isRecord(*meaning.item) || isVector(*meaning.item)))
        report(place, Finding::Error,
                QStringLiteral("A model with the item itself has one row. Write %1.value.")
                        .arg(meaning.item->contextName()),
                meaning.item->id);
}

} // namespace uiutils::check
