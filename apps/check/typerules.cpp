#include "check/typerules.h"

#include "check/expressions.h"
#include "check/pagefile.h"

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
    const QStringList known = m_scope.imports.types.values();
    const QString proposed = proposal(name, known);
    m_findings->append(m_scope.file.at(type->identifierToken,
            QStringLiteral("No import of this file has a type %1.%2")
                    .arg(name, proposed.isEmpty() ? QStringLiteral(" Is an import missing?") : proposed)));
}

} // namespace uiutils::check
