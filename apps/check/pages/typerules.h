#pragma once

#include "check/finding.h"
#include "check/pages/pagescope.h"
#include "check/pages/shallowvisitor.h"

#include <QVector>

namespace uiutils::check {

/// Types that no import of a file has.
class TypeRules : public ShallowVisitor
{
public:
    TypeRules(const PageScope& scope, QVector<Finding>* findings)
        : m_scope(scope)
        , m_findings(findings)
    {
    }

protected:
    bool visit(QQmlJS::AST::UiObjectDefinition* object) override;
    bool visit(QQmlJS::AST::UiObjectBinding* object) override;

private:
    void judge(const QQmlJS::AST::UiQualifiedId* type);

    const PageScope& m_scope;
    QVector<Finding>* const m_findings;
};

} // namespace uiutils::check
