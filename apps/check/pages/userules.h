#pragma once

#include "check/finding.h"
#include "check/pages/pagescope.h"
#include "check/pages/shallowvisitor.h"

#include <QVector>

namespace uiutils::check {

/// What pages do with items that has no effect, or another one than was meant: writes, calls and comparisons.
class UseRules : public ShallowVisitor
{
public:
    UseRules(const PageScope& scope, QVector<Finding>* findings)
        : m_scope(scope)
        , m_findings(findings)
    {
    }

protected:
    bool visit(QQmlJS::AST::BinaryExpression* pair) override;
    bool visit(QQmlJS::AST::CallExpression* call) override;
    bool visit(QQmlJS::AST::UiScriptBinding* binding) override;
    bool visit(QQmlJS::AST::PostIncrementExpression* step) override;
    bool visit(QQmlJS::AST::PostDecrementExpression* step) override;
    bool visit(QQmlJS::AST::PreIncrementExpression* step) override;
    bool visit(QQmlJS::AST::PreDecrementExpression* step) override;

private:
    void judgeWrite(QQmlJS::AST::ExpressionNode* target, QQmlJS::AST::ExpressionNode* value);
    void judgeValue(const names::ItemFacts& item, QQmlJS::AST::ExpressionNode* value);
    void judgeComparison(QQmlJS::AST::ExpressionNode* compared, QQmlJS::AST::ExpressionNode* other);
    void judgeOrder(QQmlJS::AST::ExpressionNode* compared);
    void judgeTransaction(QQmlJS::AST::FieldMemberExpression* called);
    void report(QQmlJS::AST::Node* node, const QString& message, const names::ItemFacts& item,
            Finding::Weight weight = Finding::Error);

    const PageScope& m_scope;
    QVector<Finding>* const m_findings;
};

} // namespace uiutils::check
