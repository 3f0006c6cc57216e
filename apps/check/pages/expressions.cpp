#include "check/pages/expressions.h"

namespace uiutils::check {

using namespace QQmlJS::AST;

bool isAssignment(int operation)
{
    switch (operation) {
    case QSOperator::Assign:
    case QSOperator::InplaceAnd:
    case QSOperator::InplaceSub:
    case QSOperator::InplaceDiv:
    case QSOperator::InplaceExp:
    case QSOperator::InplaceAdd:
    case QSOperator::InplaceLeftShift:
    case QSOperator::InplaceMod:
    case QSOperator::InplaceMul:
    case QSOperator::InplaceOr:
    case QSOperator::InplaceRightShift:
    case QSOperator::InplaceURightShift:
    case QSOperator::InplaceXor:
        return true;
    default:
        return false;
    }
}

bool isComparison(int operation)
{
    return operation == QSOperator::Equal || operation == QSOperator::NotEqual || operation == QSOperator::StrictEqual
            || operation == QSOperator::StrictNotEqual;
}

bool isOrder(int operation)
{
    return operation == QSOperator::Lt || operation == QSOperator::Le || operation == QSOperator::Gt
            || operation == QSOperator::Ge;
}

ExpressionNode* unwrapped(ExpressionNode* expression)
{
    while (const auto* const inner = cast<NestedExpression*>(expression))
        expression = inner->expression;
    return expression;
}

ExpressionNode* expressionOf(Statement* statement)
{
    auto* const only = cast<ExpressionStatement*>(statement);
    return only ? unwrapped(only->expression) : nullptr;
}

bool isNothing(ExpressionNode* expression)
{
    if (cast<NullExpression*>(expression))
        return true;
    if (const auto* const text = cast<StringLiteral*>(expression))
        return text->value == QLatin1String("undefined");
    const auto* const name = cast<IdentifierExpression*>(expression);
    return name && name->name == QLatin1String("undefined");
}

QString serviceIn(ExpressionNode* expression)
{
    ExpressionNode* base = nullptr;
    QString name;
    if (auto* const field = cast<FieldMemberExpression*>(expression)) {
        base = field->base;
        name = field->name.toString();
    } else if (auto* const element = cast<ArrayMemberExpression*>(expression)) {
        const auto* const text = cast<StringLiteral*>(element->expression);
        base = element->base;
        name = text ? text->value.toString() : QString();
    }
    const auto* const services = cast<IdentifierExpression*>(base);
    return services && services->name == QLatin1String("services") ? name : QString();
}

bool readNumber(ExpressionNode* expression, double* number)
{
    expression = unwrapped(expression);
    double sign = 1;
    if (const auto* const minus = cast<UnaryMinusExpression*>(expression)) {
        sign = -1;
        expression = unwrapped(minus->expression);
    }
    const auto* const literal = cast<NumericLiteral*>(expression);
    if (literal)
        *number = sign * literal->value;
    return literal != nullptr;
}

QString toText(const UiQualifiedId* id)
{
    QString text;
    for (; id; id = id->next) {
        if (!text.isEmpty())
            text += QLatin1Char('.');
        text += id->name;
    }
    return text;
}

QString lastName(const UiQualifiedId* id)
{
    QString name;
    for (; id; id = id->next)
        name = id->name.toString();
    return name;
}

} // namespace uiutils::check
