#include "check/pages/shallowvisitor.h"

#include <private/qqmljsast_p.h>

namespace uiutils::check {

bool ShallowVisitor::preVisit(QQmlJS::AST::Node* node)
{
    if (++m_depth <= deepest)
        return true;
    if (!m_isCut)
        m_cutLine = int(node->firstSourceLocation().startLine);
    m_isCut = true;
    return false;
}

void ShallowVisitor::postVisit(QQmlJS::AST::Node*)
{
    --m_depth;
}

} // namespace uiutils::check
