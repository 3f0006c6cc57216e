#pragma once

#include "check/finding.h"
#include "check/pages/pagescope.h"
#include "check/pages/shallowvisitor.h"

#include <QVector>

namespace uiutils::check {

/// What the objects of a page bind that does not fit them.
class ObjectRules : public ShallowVisitor
{
public:
    ObjectRules(const PageScope& scope, QVector<Finding>* findings)
        : m_scope(scope)
        , m_findings(findings)
    {
    }

protected:
    bool visit(QQmlJS::AST::UiObjectDefinition* object) override;
    bool visit(QQmlJS::AST::UiObjectBinding* object) override;
    bool visit(QQmlJS::AST::UiScriptBinding* binding) override;

private:
    struct Object
    {
        QString type;
        QQmlJS::AST::UiObjectMemberList* members;
    };
    void judge(const Object& object);
    void judgeEntry(const Object& object);
    /// What a copied line leaves behind: the engine loads no page with it.
    void judgeCopies(const Object& object);
    void judgeProperty(const Object& object, QQmlJS::AST::UiQualifiedId* name);
    void judgeConnections(const Object& object);
    void judgeHandler(const Meaning& target, const QQmlJS::SourceLocation& place, const QString& handler);
    void judgeSignal(const Object& object);
    void judgeBinding(const QString& property, QQmlJS::AST::ExpressionNode* value);
    void report(const QQmlJS::SourceLocation& place, Finding::Weight weight, const QString& message,
            const QString& item = {});

    const PageScope& m_scope;
    QVector<Finding>* const m_findings;
};

} // namespace uiutils::check
