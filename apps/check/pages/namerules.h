#pragma once

#include "check/finding.h"
#include "check/pages/pagescope.h"
#include "check/pages/shallowvisitor.h"

#include <QVector>

namespace uiutils::check {

/// Names that nothing has: of items, of what items and services have, of choices, of services.
class NameRules : public ShallowVisitor
{
public:
    NameRules(const PageScope& scope, QVector<Finding>* findings)
        : m_scope(scope)
        , m_findings(findings)
    {
    }

protected:
    bool visit(QQmlJS::AST::IdentifierExpression* name) override;
    bool visit(QQmlJS::AST::FieldMemberExpression* field) override;
    bool visit(QQmlJS::AST::ArrayMemberExpression* element) override;
    bool visit(QQmlJS::AST::TypeOfExpression* type) override;
    bool visit(QQmlJS::AST::BinaryExpression* pair) override;

private:
    QString nearName(const QString& name, const QStringList& known);
    void judgeService(const QQmlJS::SourceLocation& place, const QString& name);
    void judgeMember(const Meaning& base, QQmlJS::AST::FieldMemberExpression* field);
    void report(const QQmlJS::SourceLocation& place, const QString& message, const QString& item = {});

    const PageScope& m_scope;
    QVector<Finding>* const m_findings;
    /// What the page only asks for.
    QSet<const QQmlJS::AST::Node*> m_asked;
    int m_comparisons = 0;
};

} // namespace uiutils::check
