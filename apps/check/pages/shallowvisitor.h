#pragma once

#include <private/qqmljsastvisitor_p.h>

namespace uiutils::check {

/// Walks a file, but not deeper than the stack allows with certainty.
class ShallowVisitor : public QQmlJS::AST::Visitor
{
public:
    /// No page that works comes near; the engine itself stops soon after.
    static constexpr int deepest = 1000;

    /// Whether something was left out because it is nested too deeply.
    bool isCut() const { return m_isCut; }
    /// The line of the first that was left out; 0 for none.
    int cutLine() const { return m_cutLine; }

protected:
    bool preVisit(QQmlJS::AST::Node* node) override;
    void postVisit(QQmlJS::AST::Node* node) override;
    void throwRecursionDepthError() override { m_isCut = true; }

private:
    int m_depth = 0;
    bool m_isCut = false;
    int m_cutLine = 0;
};

} // namespace uiutils::check
