#include "check/pages/typerules.h"

#include "check/pages/expressions.h"
#include "check/pages/pagefile.h"
#include "check/wording.h"

#include <algorithm>

namespace uiutils::check {

using namespace QQmlJS::AST;

bool TypeRules::visit(UiObjectDefinition* object)
{
    judge(object->qualifiedTypeNameId);
    return true;
}

bool TypeRules::visit(UiObjectBinding* object)
{
    judge(object->qualifiedTypeNameId);
    return true;
}

void TypeRules::judge(const UiQualifiedId* type)
{
    const QString name = toText(type);
    // A group of properties, such as `anchors { … }`.
    const bool isGroup = !lastName(type).at(0).isUpper();
    const bool isOwn = m_scope.imports.types.contains(name) || m_scope.names.isDeclared(lastName(type));
    if (isGroup || isOwn || !m_scope.imports.isComplete)
        return;
    QStringList near = m_scope.imports.types.values();
    near.erase(std::remove_if(near.begin(), near.end(), [&name](const QString& known) { return !isSlip(name, known); }),
            near.end());
    const QString home = m_scope.imports.homes.value(name);
    QString advice = proposal(near);
    if (advice.isEmpty())
        advice = home.isEmpty() ? QStringLiteral(" Is an import missing?")
                                : QStringLiteral(" The module %1 has it: import that.").arg(home);
    m_findings->append(m_scope.file.at(
            type->identifierToken, QStringLiteral("No import of this file has a type %1.%2").arg(name, advice)));
}

} // namespace uiutils::check
