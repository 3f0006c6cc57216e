#pragma once

#include <QString>

#include <private/qqmljsast_p.h>

namespace uiutils::check {

/// "=", "+=" and the like.
bool isAssignment(int operation);
/// "==", "!=", "===", "!==".
bool isComparison(int operation);
/// "<", "<=", ">", ">=".
bool isOrder(int operation);

/// The expression without parentheses around it.
QQmlJS::AST::ExpressionNode* unwrapped(QQmlJS::AST::ExpressionNode* expression);
/// The expression of a binding; null for a block of statements, and for null.
QQmlJS::AST::ExpressionNode* expressionOf(QQmlJS::AST::Statement* statement);
/// Whether it is `null`, `undefined` or the text "undefined".
bool isNothing(QQmlJS::AST::ExpressionNode* expression);
/// NAME of `services.NAME` and `services["NAME"]`; empty for another expression.
QString serviceIn(QQmlJS::AST::ExpressionNode* expression);
/// The value of a number, with a sign or without.
bool readNumber(QQmlJS::AST::ExpressionNode* expression, double* number);

/// "Sub.Name" of a name with points; empty for null.
QString toText(const QQmlJS::AST::UiQualifiedId* id);
/// Its last part.
QString lastName(const QQmlJS::AST::UiQualifiedId* id);

} // namespace uiutils::check
