#include "check/pages/userules.h"

#include "check/pages/expressions.h"
#include "check/pages/pagefile.h"
#include "check/wording.h"

#include <algorithm>

namespace uiutils::check {

using namespace QQmlJS::AST;

namespace {

QString choicesOf(const names::ItemFacts& item)
{
    QStringList words;
    for (const names::Choice& choice : item.choices)
        words += QStringLiteral("%1 (%2)").arg(choice.name, QString::number(choice.value));
    return enumeration(words);
}

bool hasChoice(const names::ItemFacts& item, double value)
{
    return std::any_of(item.choices.cbegin(), item.choices.cend(),
            [value](const names::Choice& choice) { return double(choice.value) == value; });
}

/// What the service accepts, of a number: "at least 1", "at most 5" or "1 to 5".
QString limitsOf(const names::ItemFacts& item)
{
    if (!item.minimum.isValid())
        return QStringLiteral("at most %1").arg(item.maximum.toString());
    return item.maximum.isValid() ? QStringLiteral("%1 to %2").arg(item.minimum.toString(), item.maximum.toString())
                                  : QStringLiteral("at least %1").arg(item.minimum.toString());
}

bool isOutside(const names::ItemFacts& item, double value)
{
    return (item.minimum.isValid() && value < item.minimum.toDouble())
            || (item.maximum.isValid() && value > item.maximum.toDouble());
}

bool isLiteral(ExpressionNode* expression)
{
    double number = 0;
    return readNumber(expression, &number) || cast<StringLiteral*>(expression) || cast<TrueLiteral*>(expression)
            || cast<FalseLiteral*>(expression);
}

QString kindOf(const names::ItemFacts& item)
{
    return item.isAction() ? QStringLiteral("an action") : QStringLiteral("a result");
}

} // namespace

void UseRules::report(Node* node, const QString& message, const names::ItemFacts& item, Finding::Weight weight)
{
    Finding finding = m_scope.file.at(node->firstSourceLocation(), message, item.id);
    finding.weight = weight;
    m_findings->append(finding);
}

bool UseRules::visit(BinaryExpression* pair)
{
    if (isAssignment(pair->op)) {
        judgeWrite(unwrapped(pair->left), pair->op == QSOperator::Assign ? unwrapped(pair->right) : nullptr);
    } else if (isComparison(pair->op)) {
        judgeComparison(unwrapped(pair->left), unwrapped(pair->right));
        judgeComparison(unwrapped(pair->right), unwrapped(pair->left));
    } else if (isOrder(pair->op)) {
        judgeOrder(unwrapped(pair->left));
        judgeOrder(unwrapped(pair->right));
    }
    return true;
}

bool UseRules::visit(PostIncrementExpression* step)
{
    judgeWrite(unwrapped(step->base), nullptr);
    return true;
}

bool UseRules::visit(PostDecrementExpression* step)
{
    judgeWrite(unwrapped(step->base), nullptr);
    return true;
}

bool UseRules::visit(PreIncrementExpression* step)
{
    judgeWrite(unwrapped(step->expression), nullptr);
    return true;
}

bool UseRules::visit(PreDecrementExpression* step)
{
    judgeWrite(unwrapped(step->expression), nullptr);
    return true;
}

/// `value` is null where it is computed.
void UseRules::judgeWrite(ExpressionNode* target, ExpressionNode* value)
{
    // A name of the page's own is given another value.
    const auto* const name = cast<IdentifierExpression*>(target);
    if (name && m_scope.names.isDeclared(name->name.toString()))
        return;
    const Meaning meaning = m_scope.meaningOf(target);
    if (meaning.kind == Meaning::Item) {
        report(target,
                QStringLiteral("An item cannot be replaced. Write to its value: %1.value = …")
                        .arg(meaning.item->contextName()),
                *meaning.item);
    } else if (meaning.isValue() && !meaning.item->isSetting()) {
        report(target,
                QStringLiteral("%1 is %2, and only settings can be written: this has no effect.%3")
                        .arg(meaning.item->contextName(), kindOf(*meaning.item),
                                meaning.item->isAction() ? QStringLiteral(" Carry it out with %1.invoke().")
                                                                   .arg(meaning.item->contextName())
                                                         : QString()),
                *meaning.item);
    } else if (meaning.isValue()) {
        judgeValue(*meaning.item, value);
    } else if (meaning.kind == Meaning::OfItem || meaning.kind == Meaning::Choices) {
        const Member member = memberOf(*meaning.item, meaning.member);
        if (member.kind != Member::None && !member.isWritable)
            report(target,
                    QStringLiteral("\"%1\" of an item cannot be written; of a setting, \"value\" can.")
                            .arg(meaning.member),
                    *meaning.item);
    }
}

void UseRules::judgeValue(const names::ItemFacts& item, ExpressionNode* value)
{
    double number = 0;
    const bool isNumeric = value && readNumber(value, &number);
    if (isChoice(item) && isNumeric && !item.choices.isEmpty() && !hasChoice(item, number)) {
        report(value,
                QStringLiteral("%1 has no choice with the value %2. Its choices are %3.")
                        .arg(item.contextName(), QString::number(number), choicesOf(item)),
                item);
    } else if (isChoice(item) && value && cast<StringLiteral*>(value)) {
        bool isNumber = false;
        const QString text = cast<StringLiteral*>(value)->value.toString();
        text.toDouble(&isNumber);
        if (!isNumber)
            report(value,
                    QStringLiteral("The value of %1 is the number of a choice, not a text. Its choices are %2, which "
                                   "pages write as %1.enums.NAME.")
                            .arg(item.contextName(), choicesOf(item)),
                    item);
    } else if (isNumber(item) && !isChoice(item) && isNumeric && isOutside(item, number)) {
        report(value,
                QStringLiteral("The service will reject %1: %2 accepts %3.")
                        .arg(QString::number(number, 'g', 15), item.contextName(), limitsOf(item)),
                item, Finding::Warning);
    }
}

void UseRules::judgeComparison(ExpressionNode* compared, ExpressionNode* other)
{
    const Meaning meaning = m_scope.meaningOf(compared);
    if (meaning.kind == Meaning::Item && isLiteral(other)) {
        report(compared,
                QStringLiteral("This compares the item itself, which never equals a value. Compare %1.value.")
                        .arg(meaning.item->contextName()),
                *meaning.item);
        return;
    }
    const auto* const text = cast<StringLiteral*>(other);
    bool isNumber = false;
    if (!text || !meaning.isValue() || !isChoice(*meaning.item))
        return;
    text->value.toString().toDouble(&isNumber);
    if (!isNumber)
        report(compared,
                QStringLiteral("The value of %1 is the number of a choice, which never equals a text. Compare it with "
                               "%1.enums.NAME, where NAME is one of %2.")
                        .arg(meaning.item->contextName(), choicesOf(*meaning.item)),
                *meaning.item);
}

void UseRules::judgeOrder(ExpressionNode* compared)
{
    const Meaning meaning = m_scope.meaningOf(compared);
    if (meaning.kind == Meaning::Item)
        report(compared,
                QStringLiteral("This compares the item itself, which has no size. Compare %1.value.")
                        .arg(meaning.item->contextName()),
                *meaning.item);
}

/// A service without the item that stands for itself takes no batch.
void UseRules::judgeTransaction(FieldMemberExpression* called)
{
    const bool isTransaction = called
            && (called->name == QLatin1String("startChanges") || called->name == QLatin1String("applyChanges"));
    const Meaning service = isTransaction ? m_scope.meaningOf(called->base) : Meaning();
    const bool isKnown = service.kind == Meaning::Service && m_scope.items.hasService(service.member);
    if (!isKnown || m_scope.items.takesBatches(service.member))
        return;
    Finding finding = m_scope.file.at(called->identifierToken,
            QStringLiteral(
                    "The service \"%1\" takes no changes together, because it has no item \":result:%1:manifest:\". "
                    "Add one to its file, or write the settings one by one.")
                    .arg(service.member));
    finding.weight = Finding::Warning;
    m_findings->append(finding);
}

bool UseRules::visit(CallExpression* call)
{
    judgeTransaction(cast<FieldMemberExpression*>(call->base));
    const Meaning meaning = m_scope.meaningOf(call->base);
    if (meaning.kind != Meaning::OfItem)
        return true;
    const names::ItemFacts& item = *meaning.item;
    const bool isInvoked
            = meaning.member == QLatin1String("invoke") || meaning.member == QLatin1String("invokeWithStringArg");
    if (memberOf(item, meaning.member).kind == Member::Property)
        report(call->base,
                QStringLiteral("\"%1\" of an item is a property, not a function: write it without ().")
                        .arg(meaning.member),
                item);
    else if (isInvoked && !item.isAction())
        report(call->base,
                QStringLiteral("%1 is no action, so it cannot be carried out.%2")
                        .arg(item.contextName(), item.isSetting() ? QStringLiteral(" Write to its value.") : QString()),
                item);
    else if (meaning.member == QLatin1String("setAt") && !item.isSetting())
        report(call->base,
                QStringLiteral("%1 is %2, and only settings can be written: this has no effect.")
                        .arg(item.contextName(), kindOf(item)),
                item);
    else if (meaning.member == QLatin1String("setAt") && !isVector(item))
        report(call->base,
                QStringLiteral("%1 has no elements: setAt() has no effect. Write to its value.")
                        .arg(item.contextName()),
                item);
    return true;
}

/// `onClicked: item.invoke` names the function and does not call it.
bool UseRules::visit(UiScriptBinding* binding)
{
    const QString name = lastName(binding->qualifiedId);
    ExpressionNode* const expression = expressionOf(binding->statement);
    const bool isHandler = name.size() > 2 && name.startsWith(QLatin1String("on")) && name.at(2).isUpper();
    if (!isHandler || !expression)
        return true;
    const Meaning meaning = m_scope.meaningOf(expression);
    if (meaning.kind == Meaning::OfItem && memberOf(*meaning.item, meaning.member).kind == Member::Operation)
        report(expression,
                QStringLiteral("This does nothing: it names a function and does not call it. Write %1.%2().")
                        .arg(meaning.item->contextName(), meaning.member),
                *meaning.item);
    return true;
}

} // namespace uiutils::check
